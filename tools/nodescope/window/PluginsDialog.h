// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PLUGINSDIALOG_H
#define PLUGINSDIALOG_H

#include <QObject>

class HbGUIManagement;
class HbGUIManager;
class HbNscPluginsManagerDialog;

/// Makes the library's dialog of plug-ins a window of the tool, which stands over it, tells why a plug-in cannot be
/// loaded and loads again what was chosen there before.
class PluginsDialog : public QObject
{
    Q_OBJECT

public:
    PluginsDialog(HbGUIManager &manager, HbGUIManagement *tool);

    /// Loads what was chosen before, and remembers from now on what is chosen; not where the preferences want no
    /// plug-ins.
    void remember();
    /// A plug-in was added or removed.
    void keepChoice();

Q_SIGNALS:
    void message(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add();
    bool load(const QString &fileName);
    void loadAgain(const QString &fileName);
    void centre();

    HbGUIManager &m_manager;
    HbGUIManagement *m_tool;
    HbNscPluginsManagerDialog *m_dialog;
    QWidget *m_window;
    bool m_remembers = false;
};

#endif
