// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorTable.h"

#include "FieldLength.h"
#include "ValueText.h"

#include <HbIntSlider.h>
#include <HbMFColorWidget.h>
#include <HbMFDefaultFieldWidget.h>
#include <HbMFFloatWidget.h>
#include <HbMFInt32Widget.h>
#include <HbMFMatrixWidget.h>
#include <HbMFPlaneWidget.h>
#include <HbMFShortWidget.h>
#include <HbMFStringWidget.h>
#include <HbMFUInt32Widget.h>
#include <HbMFUShortWidget.h>
#include <HbMFVec2fWidget.h>
#include <HbMFVec2sWidget.h>
#include <HbMFVec3fWidget.h>
#include <HbMFVec4fWidget.h>
#include <HbRangeSettings.h>
#include <HbRealSlider.h>
#include <HbSFBitMaskWidget.h>
#include <HbSFBoolWidget.h>
#include <HbSFBox3sWidget.h>
#include <HbSFColorWidget.h>
#include <HbSFEnumWidget.h>
#include <HbSFFloatWidget.h>
#include <HbSFImageWidget.h>
#include <HbSFInt32Widget.h>
#include <HbSFLineWidget.h>
#include <HbSFMatrixWidget.h>
#include <HbSFNameWidget.h>
#include <HbSFPlaneWidget.h>
#include <HbSFRotationWidget.h>
#include <HbSFShortWidget.h>
#include <HbSFStringWidget.h>
#include <HbSFUInt32Widget.h>
#include <HbSFUShortWidget.h>
#include <HbSFVec2fWidget.h>
#include <HbSFVec2i32Widget.h>
#include <HbSFVec2sWidget.h>
#include <HbSFVec3fWidget.h>
#include <HbSFVec4fWidget.h>
#include <HbUIntSlider.h>

#include <QCheckBox>
#include <QComboBox>

#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>
#include <typeinfo>
#include <vector>

namespace
{
using Manager = HbFieldEditorCommandManager;

template <class Widget>
HbFieldEditors *ranged(SoField &, const char *label, const HbRangeComponent &range, Manager *manager, QWidget *parent)
{
    return new Widget(label, range, manager, parent, nullptr, {});
}

template <class Widget>
HbFieldEditors *plain(SoField &, const char *label, const HbRangeComponent &, Manager *manager, QWidget *parent)
{
    return new Widget(label, manager, parent, nullptr, {});
}

HbFieldEditors *choice(SoField &field, const char *label, const HbRangeComponent &, Manager *manager, QWidget *parent)
{
    const auto &enumeration = static_cast<const SoSFEnum &>(field);
    std::vector<SbName> names(static_cast<std::size_t>(enumeration.getNumEnums()));
    for (std::size_t i = 0; i < names.size(); ++i)
        enumeration.getEnum(static_cast<int>(i), names[i]);
    return new HbSFEnumWidget(label, manager, static_cast<int>(names.size()), names.data(), parent, nullptr, {});
}

HbFieldEditors *bits(SoField &field, const char *label, const HbRangeComponent &, Manager *manager, QWidget *parent)
{
    return new HbSFBitMaskWidget(&field, label, manager, parent, nullptr, {});
}

HbFieldEditors *text(SoField &, const char *label, const HbRangeComponent &, Manager *, QWidget *parent)
{
    return new ValueText(label, parent);
}

/// Shows each matrix as it reads: the library's grid shows the first elements of the rows in its first line.
class ReadableMatrices : public HbMFMatrixWidget
{
public:
    using HbMFMatrixWidget::HbMFMatrixWidget;

    QString getFieldValue(int row, int col) const override
    {
        const SoMField *const matrices = editedField();
        if (!matrices || row < 0 || row >= matrices->getNum() || col != 0)
            return {};
        QStringList numbers;
        for (int i = 0; i < 16; ++i)
            numbers += element(row, i);
        return numbers.join(QLatin1Char(' '));
    }
    QString getCellText(int row, int col, int) const override { return getFieldValue(row, col); }
    QString getPopupValue(int row, int index) override
    {
        const SoMField *const matrices = editedField();
        return matrices && row >= 0 && row < matrices->getNum() ? element(row, index) : QString();
    }

private:
    QString element(int row, int index) const
    {
        const SbMatrix &matrix = (*static_cast<const SoMFMatrix *>(editedField()))[row];
        return QString::number(static_cast<double>(matrix[index / 4][index % 4]), 'g', 6);
    }
};

constexpr char realRow[] = "floatField";
constexpr char integerRow[] = "intField";

// A fixed range would empty the slider of an unsigned number.
constexpr EditorKind kinds[] = {
    {SoMFFloat::getClassTypeId, ranged<HbMFFloatWidget>, realRow, true},
    {SoMFMatrix::getClassTypeId, plain<ReadableMatrices>, nullptr, false},
    {SoMFColor::getClassTypeId, plain<HbMFColorWidget>, nullptr, false},
    {SoMFInt32::getClassTypeId, plain<HbMFInt32Widget>, nullptr, false},
    {SoMFPlane::getClassTypeId, plain<HbMFPlaneWidget>, nullptr, false},
    {SoMFShort::getClassTypeId, plain<HbMFShortWidget>, nullptr, false},
    {SoMFString::getClassTypeId, plain<HbMFStringWidget>, nullptr, false},
    {SoMFUInt32::getClassTypeId, plain<HbMFUInt32Widget>, nullptr, false},
    {SoMFUShort::getClassTypeId, plain<HbMFUShortWidget>, nullptr, false},
    {SoMFVec2f::getClassTypeId, plain<HbMFVec2fWidget>, nullptr, false},
    {SoMFVec2s::getClassTypeId, plain<HbMFVec2sWidget>, nullptr, false},
    {SoMFVec3f::getClassTypeId, plain<HbMFVec3fWidget>, nullptr, false},
    {SoMFVec4f::getClassTypeId, plain<HbMFVec4fWidget>, nullptr, false},
    {SoSFBitMask::getClassTypeId, bits, nullptr, false},
    {SoSFBool::getClassTypeId, plain<HbSFBoolWidget>, nullptr, false},
    {SoSFBox3s::getClassTypeId, plain<HbSFBox3sWidget>, nullptr, false},
    {SoSFColor::getClassTypeId, plain<HbSFColorWidget>, nullptr, false},
    {SoSFEnum::getClassTypeId, choice, nullptr, false},
    {SoSFFloat::getClassTypeId, ranged<HbSFFloatWidget>, realRow, true},
    {SoSFImage::getClassTypeId, plain<HbSFImageWidget>, nullptr, false},
    {SoSFInt32::getClassTypeId, ranged<HbSFInt32Widget>, integerRow, true},
    {SoSFMatrix::getClassTypeId, plain<HbSFMatrixWidget>, nullptr, false},
    {SoSFName::getClassTypeId, plain<HbSFNameWidget>, nullptr, false},
    {SoSFPlane::getClassTypeId, plain<HbSFPlaneWidget>, nullptr, false},
    {SoSFRotation::getClassTypeId, plain<HbSFRotationWidget>, nullptr, false},
    {SoSFShort::getClassTypeId, ranged<HbSFShortWidget>, integerRow, true},
    {SoSFString::getClassTypeId, plain<HbSFStringWidget>, nullptr, false},
    {SoSFUInt32::getClassTypeId, ranged<HbSFUInt32Widget>, integerRow, false},
    {SoSFUShort::getClassTypeId, ranged<HbSFUShortWidget>, integerRow, false},
    {SoSFVec2f::getClassTypeId, plain<HbSFVec2fWidget>, nullptr, false},
    {SoSFVec2s::getClassTypeId, plain<HbSFVec2sWidget>, nullptr, false},
    {SoSFVec3f::getClassTypeId, plain<HbSFVec3fWidget>, nullptr, false},
    {SoSFVec4f::getClassTypeId, plain<HbSFVec4fWidget>, nullptr, false},
};
constexpr EditorKind anySingleValue = {nullptr, plain<HbSFLineWidget>, nullptr, false};
constexpr EditorKind anyValues = {nullptr, plain<HbMFDefaultFieldWidget>, nullptr, false};
constexpr EditorKind tooLong = {nullptr, text, nullptr, false};

template <class... Widgets> bool isOneOf(const HbFieldEditors &editor)
{
    return ((typeid(editor) == typeid(Widgets)) || ...);
}

bool intersects(const SoSFEnum &mask, const QString &wanted)
{
    for (int i = 0; i < mask.getNumEnums(); ++i) {
        SbName name;
        const int value = mask.getEnum(i, name);
        if (wanted == QLatin1String(name.getString()))
            return value & mask.getValue();
    }
    return false;
}
} // namespace

const EditorKind &EditorTable::kindFor(const SoField &field)
{
    const auto *const found = std::find_if(std::begin(kinds), std::end(kinds), [&](const EditorKind &kind) {
        return kind.fieldType() == field.getTypeId();
    });
    const bool isNameless = field.isOfType(SoSFEnum::getClassTypeId()) && choices(field).isEmpty();
    if (found != std::end(kinds) && !isNameless)
        return *found;
    if (isLong(field))
        return tooLong;
    return field.isOfType(SoSField::getClassTypeId()) ? anySingleValue : anyValues;
}

QStringList EditorTable::choices(const SoField &field)
{
    QStringList names;
    if (!field.isOfType(SoSFEnum::getClassTypeId()))
        return names;
    const auto &enumeration = static_cast<const SoSFEnum &>(field);
    for (int i = 0; i < enumeration.getNumEnums(); ++i) {
        SbName name;
        enumeration.getEnum(i, name);
        names += QString::fromLatin1(name.getString());
    }
    return names;
}

bool EditorTable::isStandard(const HbFieldEditors &editor)
{
    return isOneOf<HbSFBitMaskWidget, HbSFBox3sWidget, HbSFColorWidget, HbSFEnumWidget, HbSFFloatWidget,
                   HbSFInt32Widget, HbSFLineWidget, HbSFMatrixWidget, HbSFNameWidget, HbSFPlaneWidget,
                   HbSFRotationWidget, HbSFShortWidget, HbSFStringWidget, HbSFUInt32Widget, HbSFUShortWidget,
                   HbSFVec2fWidget, HbSFVec2i32Widget, HbSFVec2sWidget, HbSFVec3fWidget, HbSFVec4fWidget>(editor);
}

HbRangeComponent EditorTable::rangeFor(const EditorKind &kind, const SoField &field)
{
    static const HbRangeSettings settings;
    const SoFieldContainer *const container = field.getContainer();
    SbName name;
    if (!kind.rangeRow || !container || !container->getFieldName(&field, name))
        return {};
    const char *const nodeClass = container->getTypeId().getName().getString();
    HbRangeComponent range = settings.isBounded(nodeClass, name.getString())
        ? settings.getFieldRange(nodeClass, name.getString())
        : settings.getFieldRange("DefaultNode", kind.rangeRow);
    if (!kind.canFixRange)
        range.setBoundFixed(false);
    return range;
}

void EditorTable::resetRange(HbFieldEditors &editor, const HbRangeComponent &range)
{
    auto *const slider = editor.findChild<HbSlider *>();
    if (auto *const real = dynamic_cast<HbRealSlider *>(slider)) {
        real->setValidLimits(range.fMin, range.fMax, range.boundFixed);
        real->setValidLimits(range.fMin, range.fMax, range.boundFixed); // the top's position hangs on the bottom
    } else if (auto *const integer = dynamic_cast<HbIntSlider *>(slider)) {
        integer->setValidLimits(range.iMin, range.iMax, range.boundFixed);
    } else if (auto *const natural = dynamic_cast<HbUIntSlider *>(slider)) {
        natural->setValidLimits(static_cast<unsigned>(qMax(range.iMin, 0)), static_cast<unsigned>(range.iMax),
                                range.boundFixed);
    }
}

void EditorTable::renew(HbFieldEditors &editor, const SoField &field)
{
    const QStringList names = choices(field);
    if (names.isEmpty())
        return;
    if (auto *const box = editor.findChild<QComboBox *>(); box && box->count() == names.size()) {
        for (int i = 0; i < names.size(); ++i)
            box->setItemText(i, names[i]);
    } else if (dynamic_cast<HbSFBitMaskWidget *>(&editor)) {
        const auto boxes = editor.findChildren<QCheckBox *>();
        for (QCheckBox *const bit : boxes)
            bit->setChecked(intersects(static_cast<const SoSFEnum &>(field), bit->text()));
    }
}
