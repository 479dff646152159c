// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbEditors.h>
#include <HbGUIComponents.h>
#include <HbGUIManagement.h>

#include <QApplication>
#include <QPointer>
#include <QVariant>

#include <Inventor/nodes/SoCone.h>

#include <stdexcept>

namespace
{
/// Written down where it outlives this library; the texts are copies.
void note(const QByteArray &what)
{
    qApp->setProperty("pluginLog", qApp->property("pluginLog").toStringList() << QString::fromUtf8(what));
}

/// Its end is left to the event loop, and then leaves a call there, which makes the next.
class Straggler : public QObject
{
public:
    explicit Straggler(int more) : m_more(more) { deleteLater(); }
    ~Straggler() override
    {
        const auto makeNext = [next = m_more - 1] { new Straggler(next); };
        if (m_more > 0)
            QMetaObject::invokeMethod(qApp, makeNext, Qt::QueuedConnection);
    }

private:
    int m_more;
};

/// An event that this library ends.
class Parcel : public QEvent
{
public:
    Parcel() : QEvent(QEvent::User) { }
    ~Parcel() override { }
};

class Editor : public HbEditors
{
public:
    explicit Editor(QWidget *parent) : HbEditors(parent, {}) { registerEditor(SoCone::getClassTypeId()); }
    void updateEditor() override { show(); }
    bool isWithdrawn() const { return !registered && !isVisible(); }
};

class Plugin : public HbGUIComponents
{
public:
    explicit Plugin(HbGUIManagement *tool)
        : HbGUIComponents(tool), m_editor(new Editor(tool ? tool->getEditorsWidget() : nullptr)) // deleted below
    {
        if (tool)
            connect(tool, &QWidget::windowTitleChanged, this, [] { note("title"); });
        new Straggler(2); // deletes itself
    }
    ~Plugin() override
    {
        delete m_editor;
        new Straggler(2); // deletes itself
        QCoreApplication::postEvent(qApp, new Parcel); // owned by the event loop
    }
    void sayGoodbye() const
    {
        if (management)
            management->setObjectName(management->objectName() + QLatin1Char('x')); // the tool may do anything now
        note((m_editor->isWithdrawn() ? "released " : "released in use ") + QByteArray(path.getString()));
    }
    SbString getDescription() const override { return "of the tests"; }
    SbString getHelp() const override { return "none"; }
    SbString getName() const override { return "Gr\xf6\xdf"; } // Latin-1
    SbString getVersion() const override { return "1"; }

private:
    QPointer<Editor> m_editor;
};

QPointer<Plugin> instance;

HbNscPlugins *start(HbGUIManagement *tool)
{
    if (!instance)
        instance = new Plugin(tool); // deleted in stop(), or by the tool
    return instance;
}

void stop()
{
    instance->sayGoodbye();
    delete instance;
}
} // namespace

#define ENTRY __attribute__((used, visibility("default"))) static
#define PLUGIN(Class)                                                                                                  \
    struct Class {                                                                                                     \
        ENTRY HbNscPlugins *getInstance(HbGUIManagement *tool) { return start(tool); }                                 \
        ENTRY void releaseInstance() { stop(); }                                                                       \
    };

PLUGIN(Nsc_Good)
PLUGIN(libNsc_lib)
PLUGIN(N)
PLUGIN(LONG_CLASS)
struct Nsc_NoRelease {
    ENTRY HbNscPlugins *getInstance(HbGUIManagement *tool) { return start(tool); }
};
struct Nsc_NoGet {
    ENTRY void releaseInstance() { }
};
struct Nsc_Null {
    ENTRY HbNscPlugins *getInstance(HbGUIManagement *) { return nullptr; }
    ENTRY void releaseInstance() { }
};
struct Nsc_Throws {
    ENTRY HbNscPlugins *getInstance(HbGUIManagement *) { throw std::runtime_error("100% sure"); }
    ENTRY void releaseInstance() { throw 1; }
};
struct Nsc_Leaves {
    ENTRY HbNscPlugins *getInstance(HbGUIManagement *tool)
    {
        new Editor(nullptr); // for the test to delete
        return start(tool);
    }
    ENTRY void releaseInstance() { stop(); }
};

#ifdef CALLS_NOBODY
Q_DECL_IMPORT void definedNowhere();
struct CallsNobody {
    ENTRY void call() { definedNowhere(); }
};
#endif
