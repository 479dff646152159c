// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause
//
// The shortest plug-in: an entry in the Tools menu. To make your own, copy the folder and write the new name in the
// place of "Nsc_Template": in this file's name, in it, and in CMakeLists.txt. The class must be called like the library
// and must not stand in a namespace: the tool finds its two static functions by their names in the library.

#include <HbGUIComponents.h>
#include <HbGUIManagement.h>

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QPointer>
#include <QStatusBar>

class Nsc_Template : public HbGUIComponents
{
    Q_DECLARE_TR_FUNCTIONS(Nsc_Template) // tr(), which would come with Q_OBJECT; a plug-in needs none

public:
    // Q_DECL_EXPORT puts a function among the library's visible symbols; CMakeLists.txt hides all others.
    Q_DECL_EXPORT static HbNscPlugins *getInstance(HbGUIManagement *management);
    Q_DECL_EXPORT static void releaseInstance();

    // What the window "Plug-ins" lists, in Latin-1.
    SbString getName() const override { return "Template"; }
    SbString getDescription() const override { return "Greets from the Tools menu"; }
    SbString getHelp() const override { return "Choose Tools > Say Hello"; }
    SbString getVersion() const override { return "1.0"; }

private:
    explicit Nsc_Template(HbGUIManagement *management);
};

namespace
{
// The plug-in belongs to the main window, which may end before releaseInstance() is called: then this is null.
QPointer<Nsc_Template> instance;
} // namespace

HbNscPlugins *Nsc_Template::getInstance(HbGUIManagement *management)
{
    if (!instance)
        instance = new Nsc_Template(management); // owned by the main window
    return instance;
}

void Nsc_Template::releaseInstance()
{
    delete instance;
}

Nsc_Template::Nsc_Template(HbGUIManagement *management) : HbGUIComponents(management)
{
    QMenu *const menu = management ? management->getPluginsMenu() : nullptr; // any hook may return null
    if (!menu)
        return;
    auto *const action = new QAction(tr("Say &Hello"), this); // as a child it leaves the menu with the plug-in
    connect(action, &QAction::triggered, this,
            [management] { management->statusBar()->showMessage(tr("Hello from a plug-in"), 5000); });
    menu->addAction(action);
}
