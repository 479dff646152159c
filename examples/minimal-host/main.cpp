// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbRangeComponent.h>
#include <HbSFFloatWidget.h>

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoCone.h>

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    SoDB::init();

    auto *cone = new SoCone;
    cone->ref();
    {
        HbSFFloatWidget editor("height", HbRangeComponent(0.0F, 10.0F, false), nullptr, nullptr, nullptr, {});
        editor.setField(&cone->height);
        editor.refresh();
        editor.show();
        QApplication::exec();
    }
    std::printf("height %g\n", static_cast<double>(cone->height.getValue()));
    cone->unref();
    return 0;
}
