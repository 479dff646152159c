// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldEditorSettings.h"

#include <QByteArray>
#include <QHash>
#include <QString>

namespace
{
struct Setting {
    const char *key;
    int value;
};

/// The single place where the look of all editors is tuned; ends with a null key.
constexpr Setting fieldEditorSettings[] = {
    {"frameLineWidth", 0},
    {"labelLineWidth", 0},
    {"labelPointSize", 10},
    {"labelHeight", 20},
    {"buttonWidth", 20},
    {"buttonHeight", 20},
    {"PopupFrameWidth", 260},
    {"PopupFrameHeight", 100},
    {"PopupLayoutMargin", 6},
    {"PopupLayoutSpacing", 8},
    {"SFieldLayoutMargin", 4},
    {"SFieldLayoutSpacing", 6},
    {"SFieldEditLayoutMargin", 0},
    {"SFieldEditLayoutSpacing", 0},
    {"SFButtonLayoutMargin", 2},
    {"SFButtonLayoutSpacing", 0},
    {"SFEditionAreaLayMargin", 0},
    {"SFEditionAreaLaySpacing", 2},
    {"SFComponentHeight", 18},
    {"SFBoolWidth", 16},
    {"SFColorSpacing", 6},
    {"SFColorMargin", 0},
    {"SFColorInterSpacing", 2},
    {"SFColorDispWidth", 20},
    {"SFVecLineHeight", 16},
    {"SFVecLabelHeight", 14},
    {"SF4fBoxVSpacing", 4},
    {"SF4fBoxHSpacing", 4},
    {"SF4fBoxHMargin", 2},
    {"SF3fBoxVSpacing", 4},
    {"SF3fBoxHSpacing", 20},
    {"SF3fBoxHMargin", 2},
    {"SF2BoxHSpacing", 25},
    {"SF2BoxHMargin", 2},
    {"SF2BoxVSpacing", 4},
    {"MFGlobalLayoutSpacing", 2},
    {"MFGlobalLayoutMarging", 6},
    {"MFGlobalButtonsLayoutMargin", 0},
    {"MFGlobalButtonsLayoutSpacing", 5},
    {"MFButtonLayoutMargin", 0},
    {"MFButtonLayoutSpacing", 0},
    {"MFAccessWidth", 60},
    {"MFManageAccessSpacerWidth", 0},
    {"MFManageAccessSpacerHeight", 0},
    {"MFAccessMoveSpacerHeight", 0},
    {"MFAccessMoveSpacerWidth", 0},
    {"MFTableMinHeightWin", 43},
    {"MFTableMinHeightUnix", 46},
    {nullptr, 0},
};
} // namespace

int nscsettings_fieldEditor(const QString &key)
{
    static QHash<QString, int> dict;
    const auto known = dict.constFind(key);
    if (known != dict.constEnd())
        return *known;

    const QByteArray wanted = key.toLatin1();
    for (const Setting *setting = fieldEditorSettings; setting->key; ++setting) {
        if (wanted == setting->key)
            return *dict.insert(key, setting->value);
    }
    return 0;
}
