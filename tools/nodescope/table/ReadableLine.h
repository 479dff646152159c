// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef READABLELINE_H
#define READABLELINE_H

#include <QObject>

class HbPopupWidget;
class QLineEdit;

/// Makes the line in which a popup editor shows its whole value one that can be read, scrolled and copied from. What
/// would edit it opens the popup: a double click, Return, F2. There the first number is selected.
class ReadableLine : public QObject
{
public:
    /// Belongs to the editor.
    explicit ReadableLine(HbPopupWidget &editor);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void selectFirst();

    HbPopupWidget &m_editor;
    QLineEdit *const m_line;
};

#endif
