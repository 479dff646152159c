// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "Comparison.h"
#include "PlainControls.h"
#include "QuietManager.h"

#include <HbRangeComponent.h>
#include <HbSFBoolWidget.h>
#include <HbSFFloatWidget.h>
#include <HbSFInt32Widget.h>
#include <HbSFShortWidget.h>
#include <HbSFUInt32Widget.h>
#include <HbSFUShortWidget.h>

#include <QDoubleValidator>
#include <QIntValidator>

namespace
{
constexpr double aim = 1.15;

using PlainControls::Finish;
using Build = std::function<QWidget *(QWidget *parent)>;

double secondsToBuild(const Build &build)
{
    QWidget parent;
    return secondsOf([&] { build(&parent); });
}

void compareBuilding(const char *kind, const std::function<QWidget *(QuietManager *, QWidget *)> &editor,
                     const std::function<QWidget *(Finish, QWidget *)> &plain)
{
    const auto add = [&](const char *against, Finish finish) {
        compare({std::string("building one ") + kind, against, aim}, [=] {
            const auto manager = std::make_shared<QuietManager>();
            return Sides{[=] { return secondsToBuild([&](QWidget *parent) { return editor(manager.get(), parent); }); },
                         [=] { return secondsToBuild([&](QWidget *parent) { return plain(finish, parent); }); }};
        });
    };
    add("plain Qt, bare", Finish::Bare);
    add("plain Qt with names and frames", Finish::Complete);
}

template <class Editor> void compareNumber(const char *kind, const std::function<QValidator *()> &validator)
{
    compareBuilding(
        kind,
        [](QuietManager *manager, QWidget *parent) {
            HbRangeComponent range(0, 100, false);
            range.setfRange(0, 100);
            return new Editor("field", range, manager, parent, nullptr, {});
        },
        [=](Finish finish, QWidget *parent) {
            return PlainControls::numberRow(QStringLiteral("field"), validator(), finish, parent);
        });
}
} // namespace

void addEditorBenchmarks()
{
    const auto real = [] { return new QDoubleValidator; };
    const auto integer = [] { return new QIntValidator; };
    const auto none = [] { return nullptr; };
    compareNumber<HbSFFloatWidget>("HbSFFloatWidget", real);
    compareNumber<HbSFInt32Widget>("HbSFInt32Widget", integer);
    compareNumber<HbSFShortWidget>("HbSFShortWidget", integer);
    compareNumber<HbSFUInt32Widget>("HbSFUInt32Widget", none);
    compareNumber<HbSFUShortWidget>("HbSFUShortWidget", none);
    compareBuilding(
        "HbSFBoolWidget",
        [](QuietManager *manager, QWidget *parent) {
            return new HbSFBoolWidget("field", manager, parent, nullptr, {});
        },
        [](Finish finish, QWidget *parent) { return PlainControls::boolRow(QStringLiteral("field"), finish, parent); });
}
