// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorTable.h"

#include "FieldLength.h"
#include "ValueText.h"

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
#include <HbRangeComponent.h>
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

#include <QComboBox>

#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>
#include <typeinfo>
#include <vector>

namespace
{
using Manager = HbFieldEditorCommandManager;

template <class Widget> HbFieldEditors *ranged(SoField &, const char *label, Manager *manager, QWidget *parent)
{
    return new Widget(label, HbRangeComponent(), manager, parent, nullptr, {});
}

template <class Widget> HbFieldEditors *plain(SoField &, const char *label, Manager *manager, QWidget *parent)
{
    return new Widget(label, manager, parent, nullptr, {});
}

HbFieldEditors *choice(SoField &field, const char *label, Manager *manager, QWidget *parent)
{
    const auto &enumeration = static_cast<const SoSFEnum &>(field);
    std::vector<SbName> names(static_cast<std::size_t>(enumeration.getNumEnums()));
    for (std::size_t i = 0; i < names.size(); ++i)
        enumeration.getEnum(static_cast<int>(i), names[i]);
    return new HbSFEnumWidget(label, manager, static_cast<int>(names.size()), names.data(), parent, nullptr, {});
}

HbFieldEditors *bits(SoField &field, const char *label, Manager *manager, QWidget *parent)
{
    return new HbSFBitMaskWidget(&field, label, manager, parent, nullptr, {});
}

HbFieldEditors *text(SoField &, const char *label, Manager *, QWidget *parent)
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

constexpr EditorKind kinds[] = {
    {SoMFFloat::getClassTypeId, ranged<HbMFFloatWidget>},      {SoMFMatrix::getClassTypeId, plain<ReadableMatrices>},
    {SoMFColor::getClassTypeId, plain<HbMFColorWidget>},       {SoMFInt32::getClassTypeId, plain<HbMFInt32Widget>},
    {SoMFPlane::getClassTypeId, plain<HbMFPlaneWidget>},       {SoMFShort::getClassTypeId, plain<HbMFShortWidget>},
    {SoMFString::getClassTypeId, plain<HbMFStringWidget>},     {SoMFUInt32::getClassTypeId, plain<HbMFUInt32Widget>},
    {SoMFUShort::getClassTypeId, plain<HbMFUShortWidget>},     {SoMFVec2f::getClassTypeId, plain<HbMFVec2fWidget>},
    {SoMFVec2s::getClassTypeId, plain<HbMFVec2sWidget>},       {SoMFVec3f::getClassTypeId, plain<HbMFVec3fWidget>},
    {SoMFVec4f::getClassTypeId, plain<HbMFVec4fWidget>},       {SoSFBitMask::getClassTypeId, bits},
    {SoSFBool::getClassTypeId, plain<HbSFBoolWidget>},         {SoSFBox3s::getClassTypeId, plain<HbSFBox3sWidget>},
    {SoSFColor::getClassTypeId, plain<HbSFColorWidget>},       {SoSFEnum::getClassTypeId, choice},
    {SoSFFloat::getClassTypeId, ranged<HbSFFloatWidget>},      {SoSFImage::getClassTypeId, plain<HbSFImageWidget>},
    {SoSFInt32::getClassTypeId, ranged<HbSFInt32Widget>},      {SoSFMatrix::getClassTypeId, plain<HbSFMatrixWidget>},
    {SoSFName::getClassTypeId, plain<HbSFNameWidget>},         {SoSFPlane::getClassTypeId, plain<HbSFPlaneWidget>},
    {SoSFRotation::getClassTypeId, plain<HbSFRotationWidget>}, {SoSFShort::getClassTypeId, ranged<HbSFShortWidget>},
    {SoSFString::getClassTypeId, plain<HbSFStringWidget>},     {SoSFUInt32::getClassTypeId, ranged<HbSFUInt32Widget>},
    {SoSFUShort::getClassTypeId, ranged<HbSFUShortWidget>},    {SoSFVec2f::getClassTypeId, plain<HbSFVec2fWidget>},
    {SoSFVec2s::getClassTypeId, plain<HbSFVec2sWidget>},       {SoSFVec3f::getClassTypeId, plain<HbSFVec3fWidget>},
    {SoSFVec4f::getClassTypeId, plain<HbSFVec4fWidget>},
};
constexpr EditorKind anySingleValue = {nullptr, plain<HbSFLineWidget>};
constexpr EditorKind anyValues = {nullptr, plain<HbMFDefaultFieldWidget>};
constexpr EditorKind tooLong = {nullptr, text};

template <class... Widgets> bool isOneOf(const HbFieldEditors &editor)
{
    return ((typeid(editor) == typeid(Widgets)) || ...);
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
    return isOneOf<ReadableMatrices, HbMFColorWidget, HbMFDefaultFieldWidget, HbMFFloatWidget, HbMFInt32Widget,
                   HbMFPlaneWidget, HbMFShortWidget, HbMFStringWidget, HbMFUInt32Widget, HbMFUShortWidget,
                   HbMFVec2fWidget, HbMFVec2sWidget, HbMFVec3fWidget, HbMFVec4fWidget, HbSFBitMaskWidget,
                   HbSFBox3sWidget, HbSFColorWidget, HbSFEnumWidget, HbSFFloatWidget, HbSFInt32Widget, HbSFLineWidget,
                   HbSFMatrixWidget, HbSFNameWidget, HbSFPlaneWidget, HbSFRotationWidget, HbSFShortWidget,
                   HbSFStringWidget, HbSFUInt32Widget, HbSFUShortWidget, HbSFVec2fWidget, HbSFVec2i32Widget,
                   HbSFVec2sWidget, HbSFVec3fWidget, HbSFVec4fWidget>(editor);
}

void EditorTable::renew(HbFieldEditors &editor, const SoField &field)
{
    const QStringList names = choices(field);
    if (names.isEmpty())
        return;
    if (auto *const box = editor.findChild<QComboBox *>(); box && box->count() == names.size()) {
        for (int i = 0; i < names.size(); ++i)
            box->setItemText(i, names[i]);
    }
}
