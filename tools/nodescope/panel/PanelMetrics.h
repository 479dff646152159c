// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PANELMETRICS_H
#define PANELMETRICS_H

class QWidget;

/// The sizes of what stands in the panel, from the font and the style.
struct PanelMetrics {
    explicit PanelMetrics(const QWidget &like);

    int height; ///< of an edit, a choice, a spin box and a button
    int icon; ///< on a button
    int space; ///< beside controls
    int gap; ///< between rows
    int checkBox; ///< the width of one without a text
    int character;
    int letter; ///< the width of a component's label
    int shortNumber; ///< the narrowest edit of a number
    int longNumber; ///< an edit that shows any float
    int leastEdit; ///< the least width of an edit in a narrow panel
    int mostBeside; ///< what a row needs beside its label: that of a table has the most buttons
};

#endif
