// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorTable.h"

#include "ValueText.h"

#include <HbIntSlider.h>
#include <HbRangeSettings.h>
#include <HbRealSlider.h>
#include <HbSFBoolWidget.h>
#include <HbSFFloatWidget.h>
#include <HbSFInt32Widget.h>
#include <HbSFShortWidget.h>
#include <HbSFUInt32Widget.h>
#include <HbSFUShortWidget.h>
#include <HbUIntSlider.h>

#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>

namespace
{
template <class Widget> HbFieldEditors *ranged(const char *label, const HbRangeComponent &range,
                                               HbFieldEditorCommandManager *manager, QWidget *parent)
{
    return new Widget(label, range, manager, parent, nullptr, {});
}

template <class Widget> HbFieldEditors *plain(const char *label, const HbRangeComponent &,
                                              HbFieldEditorCommandManager *manager, QWidget *parent)
{
    return new Widget(label, manager, parent, nullptr, {});
}

HbFieldEditors *text(const char *label, const HbRangeComponent &, HbFieldEditorCommandManager *, QWidget *parent)
{
    return new ValueText(label, parent);
}

constexpr char realRow[] = "floatField";
constexpr char integerRow[] = "intField";

// A fixed range would empty the slider of an unsigned number.
constexpr EditorKind kinds[] = {
    {SoSFFloat::getClassTypeId, ranged<HbSFFloatWidget>, realRow, true},
    {SoSFInt32::getClassTypeId, ranged<HbSFInt32Widget>, integerRow, true},
    {SoSFShort::getClassTypeId, ranged<HbSFShortWidget>, integerRow, true},
    {SoSFUInt32::getClassTypeId, ranged<HbSFUInt32Widget>, integerRow, false},
    {SoSFUShort::getClassTypeId, ranged<HbSFUShortWidget>, integerRow, false},
    {SoSFBool::getClassTypeId, plain<HbSFBoolWidget>, nullptr, false},
};
constexpr EditorKind fallback = {nullptr, text, nullptr, false};
} // namespace

const EditorKind &EditorTable::kindFor(const SoField &field)
{
    const auto *const found = std::find_if(std::begin(kinds), std::end(kinds), [&](const EditorKind &kind) {
        return kind.fieldType() == field.getTypeId();
    });
    return found == std::end(kinds) ? fallback : *found;
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
        natural->setValidLimits(static_cast<unsigned>(qMax(range.iMin, 0)), static_cast<unsigned>(qMax(range.iMax, 0)),
                                range.boundFixed);
    }
}
