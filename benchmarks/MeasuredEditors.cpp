// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeasuredEditors.h"

#include "PlainAreas.h"
#include "PlainDisplay.h"

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

namespace
{
using Manager = HbFieldEditorCommandManager;
using PlainAreas::Number;

constexpr char label[] = "field";

template <class Field> std::shared_ptr<SoField> field()
{
    return std::make_shared<Field>();
}

template <class Field> std::shared_ptr<SoField> namedField()
{
    const SbName names[] = {"FIRST", "SECOND", "THIRD"};
    constexpr int values[] = {1, 2, 4};
    const auto enumeration = std::make_shared<Field>();
    enumeration->setEnums(3, values, names);
    return enumeration;
}

template <class Editor> HbFieldEditors *plain(SoField &, Manager *manager, QWidget *parent)
{
    return new Editor(label, manager, parent, nullptr, {});
}

template <class Editor> HbFieldEditors *ranged(SoField &, Manager *manager, QWidget *parent)
{
    HbRangeComponent range(0, 100, false);
    range.setfRange(0, 100);
    return new Editor(label, range, manager, parent, nullptr, {});
}

HbFieldEditors *choice(SoField &field, Manager *manager, QWidget *parent)
{
    const auto &enumeration = static_cast<const SoSFEnum &>(field);
    std::vector<SbName> names(static_cast<std::size_t>(enumeration.getNumEnums()));
    for (std::size_t i = 0; i < names.size(); ++i)
        enumeration.getEnum(static_cast<int>(i), names[i]);
    return new HbSFEnumWidget(label, manager, static_cast<int>(names.size()), names.data(), parent, nullptr, {});
}

HbFieldEditors *bits(SoField &field, Manager *manager, QWidget *parent)
{
    return new HbSFBitMaskWidget(&field, label, manager, parent, nullptr, {});
}

/// 64 by 64 pixels of one colour.
std::string picture(const std::string &pixel)
{
    std::string text = "64 64 3";
    for (int i = 0; i < 64 * 64; ++i)
        text += ' ' + pixel;
    return text;
}
} // namespace

const std::vector<MeasuredEditor> &measuredEditors()
{
    namespace Area = PlainAreas;
    namespace Show = PlainDisplay;
    constexpr auto centred = QSizePolicy::Expanding;
    static const std::vector<MeasuredEditor> editors = {
        {"HbSFFloatWidget",
         field<SoSFFloat>,
         ranged<HbSFFloatWidget>,
         {Area::slider<Number::Real>},
         Show::real,
         {"1.5", "20.25"}},
        {"HbSFInt32Widget",
         field<SoSFInt32>,
         ranged<HbSFInt32Widget>,
         {Area::slider<Number::Integer>},
         Show::integer<SoSFInt32>,
         {"1", "20"}},
        {"HbSFShortWidget",
         field<SoSFShort>,
         ranged<HbSFShortWidget>,
         {Area::slider<Number::Short>},
         Show::integer<SoSFShort>,
         {"1", "20"}},
        {"HbSFUInt32Widget",
         field<SoSFUInt32>,
         ranged<HbSFUInt32Widget>,
         {Area::slider<Number::Any>},
         Show::integer<SoSFUInt32>,
         {"1", "20"}},
        {"HbSFUShortWidget",
         field<SoSFUShort>,
         ranged<HbSFUShortWidget>,
         {Area::slider<Number::Any>},
         Show::integer<SoSFUShort>,
         {"1", "20"}},
        {"HbSFBoolWidget",
         field<SoSFBool>,
         plain<HbSFBoolWidget>,
         {Area::checkBox, centred},
         Show::truth,
         {"TRUE", "FALSE"}},
        {"HbSFEnumWidget", namedField<SoSFEnum>, choice, {Area::choice}, Show::choice, {"FIRST", "THIRD"}},
        {"HbSFBitMaskWidget",
         namedField<SoSFBitMask>,
         bits,
         {Area::bits, centred},
         Show::nothing,
         {"FIRST", "(FIRST | THIRD)"}},
        {"HbSFStringWidget",
         field<SoSFString>,
         plain<HbSFStringWidget>,
         {Area::line},
         Show::text,
         {"\"a text\"", "\"another one\""}},
        {"HbSFNameWidget", field<SoSFName>, plain<HbSFNameWidget>, {Area::line}, Show::name, {"aName", "another"}},
        {"HbSFLineWidget", field<SoSFVec3d>, plain<HbSFLineWidget>, {Area::line}, Show::line, {"0 0 0", "0.5 1.25 -3"}},
        {"HbSFVec2sWidget",
         field<SoSFVec2s>,
         plain<HbSFVec2sWidget>,
         {Area::spins<-32768, 32767>},
         Show::spins<SoSFVec2s>,
         {"0 1", "20 30"}},
        {"HbSFVec2i32Widget",
         field<SoSFVec2i32>,
         plain<HbSFVec2i32Widget>,
         {Area::spins<-1, -1>},
         Show::spins<SoSFVec2i32>,
         {"0 1", "20 30"}},
        {"HbSFVec2fWidget",
         field<SoSFVec2f>,
         plain<HbSFVec2fWidget>,
         {Area::vector<2>},
         Show::vector<SoSFVec2f, 2>,
         {"0 1", "0.5 1.25"}},
        {"HbSFVec3fWidget",
         field<SoSFVec3f>,
         plain<HbSFVec3fWidget>,
         {Area::vector<3>},
         Show::vector<SoSFVec3f, 3>,
         {"0 1 2", "0.5 1.25 -3"}},
        {"HbSFVec4fWidget",
         field<SoSFVec4f>,
         plain<HbSFVec4fWidget>,
         {Area::vector<4>},
         Show::vector<SoSFVec4f, 4>,
         {"0 1 2 3", "0.5 1.25 -3 4"}},
        {"HbSFRotationWidget",
         field<SoSFRotation>,
         plain<HbSFRotationWidget>,
         {Area::rotation},
         Show::rotation,
         {"0 0 1 0", "1 0 0 0.5"}},
        {"HbSFPlaneWidget",
         field<SoSFPlane>,
         plain<HbSFPlaneWidget>,
         {Area::plane},
         Show::plane,
         {"0 0 1 0", "1 0 0 0.5"}},
        {"HbSFColorWidget",
         field<SoSFColor>,
         plain<HbSFColorWidget>,
         {Area::colour},
         Show::colour,
         {"0 0 0", "0.5 1 0.25"}},
        {"HbSFMatrixWidget",
         field<SoSFMatrix>,
         plain<HbSFMatrixWidget>,
         {Area::popup<4, 4, Number::Real>},
         Show::matrix,
         {"1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1", "2 3 4 0 5 6 7 0 8 9 10 0 0.5 1.25 -3 1"},
         true},
        {"HbSFBox3sWidget",
         field<SoSFBox3s>,
         plain<HbSFBox3sWidget>,
         {Area::popup<2, 3, Number::Short>},
         Show::box,
         {"0 0 0 1 1 1", "-20 -30 -40 20 30 40"},
         true},
        {"HbSFImageWidget",
         field<SoSFImage>,
         plain<HbSFImageWidget>,
         {Area::picture},
         Show::picture,
         {picture("0xff8000"), picture("0x00ff00")},
         true},
    };
    return editors;
}
