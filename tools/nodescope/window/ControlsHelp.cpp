// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ControlsHelp.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace
{
struct Line {
    const char *what;
    const char *how;
};

const Line lines[] = {
    {QT_TRANSLATE_NOOP("ControlsHelp", "Turn the view"), QT_TRANSLATE_NOOP("ControlsHelp", "drag; arrow keys")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Move the view"),
     QT_TRANSLATE_NOOP("ControlsHelp", "Shift or middle button and drag; Shift+arrow keys")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Zoom"), QT_TRANSLATE_NOOP("ControlsHelp", "wheel; right button and drag; + -")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Select a node"),
     QT_TRANSLATE_NOOP("ControlsHelp", "click in the view or in the tree")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Frame it, view all, home"),
     QT_TRANSLATE_NOOP("ControlsHelp", "F, Ctrl+0, Alt+Home")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Find a node"), QT_TRANSLATE_NOOP("ControlsHelp", "Ctrl+F, then Return; F3")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Nodes selected before"),
     QT_TRANSLATE_NOOP("ControlsHelp", "Alt+Left, Alt+Right")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Tree, view, panel"),
     QT_TRANSLATE_NOOP("ControlsHelp", "F6, Shift+F6; Escape goes to the tree")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Take a typed value, drop it"),
     QT_TRANSLATE_NOOP("ControlsHelp", "Return or Tab, Escape")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Step a number"), QT_TRANSLATE_NOOP("ControlsHelp", "Up, Down")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Table: edit a cell"),
     QT_TRANSLATE_NOOP("ControlsHelp", "type, F2 or Return; double click")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Table: add, delete rows"), QT_TRANSLATE_NOOP("ControlsHelp", "Insert, Delete")},
    {QT_TRANSLATE_NOOP("ControlsHelp", "Undo, redo"), QT_TRANSLATE_NOOP("ControlsHelp", "Ctrl+Z, Ctrl+Shift+Z")},
};

QString told(const char *text)
{
    return QCoreApplication::translate("ControlsHelp", text).toHtmlEscaped();
}
} // namespace

void showControlsHelp(QWidget *parent)
{
    QString rows;
    for (const Line &line : lines)
        rows += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>").arg(told(line.what), told(line.how));
    auto *const box
        = new QMessageBox(QMessageBox::NoIcon, QCoreApplication::translate("ControlsHelp", "Mouse and Keys"),
                          QStringLiteral("<table>%1</table>").arg(rows), QMessageBox::Close, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false); // it stays while the controls are tried
    box->show();
}
