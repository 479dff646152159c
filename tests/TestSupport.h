// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TESTSUPPORT_H
#define TESTSUPPORT_H

#include <HbFieldEditorCommandManager.h>
#include <HbFieldEditors.h>

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include <Inventor/SbString.h>
#include <Inventor/SoDB.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <functional>
#include <memory>

/// Collects what Qt and Coin complain about; a suite checks after each test that nothing was unexpected.
namespace Complaints
{
inline QStringList unexpected;
inline QList<QRegularExpression> expected;
inline QtMessageHandler previousHandler = nullptr;

/// What editors say when they are built without a command manager, deliberately.
constexpr auto missingSlots = "No such slot Hb(S|M)FieldWidget::(setDefaultValue|applyChanges)\\(\\)"
                              "|\\((sender|receiver) name:";

/// Returns whether the complaint is to be told.
inline bool record(const QString &text)
{
    for (const char *const ofThePlatform : {"XDG_RUNTIME_DIR", "propagateSizeHints", "This plugin does not support"})
        if (text.contains(QLatin1String(ofThePlatform)))
            return false;
    for (const QRegularExpression &pattern : expected + QList{QRegularExpression(QLatin1String(missingSlots))})
        if (pattern.match(text).hasMatch())
            return false;
    unexpected << text;
    return true;
}

/// Also moves to a desktop that writes a comma in its numbers.
inline void listen()
{
    SoDB::init();
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    previousHandler
        = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
              if (type == QtDebugMsg || type == QtInfoMsg || record(text))
                  previousHandler(type, context, text);
          });
    SoDebugError::setHandlerCallback(
        [](const SoError *error, void *) { record(QString::fromUtf8(error->getDebugString().getString())); }, nullptr);
}

inline void expect(const char *pattern)
{
    expected << QRegularExpression(QString::fromLatin1(pattern));
}

/// What nobody expected since the last call.
inline QByteArray take()
{
    expected.clear();
    return std::exchange(unexpected, {}).join(QLatin1Char('\n')).toUtf8();
}
} // namespace Complaints

/// Writes down every command it hears.
class RecordingManager : public HbFieldEditorCommandManager
{
public:
    void mfieldSwapRows(int a, int b) override { note(QStringLiteral("swapRows %1 %2").arg(a).arg(b)); }
    void mfieldSwapColumns(int a, int b) override { note(QStringLiteral("swapColumns %1 %2").arg(a).arg(b)); }
    void mfieldDeleteRows(int row, int n) override { note(QStringLiteral("deleteRows %1 %2").arg(row).arg(n)); }
    void mfieldAddRows(int row, int n) override { note(QStringLiteral("addRows %1 %2").arg(row).arg(n)); }
    void mfieldSet1Value(int row, int col, QString text, SbString *previous) override
    {
        note(QStringLiteral("set1Value %1 %2 %3 %4")
                 .arg(row)
                 .arg(col)
                 .arg(text.isNull() ? QStringLiteral("null") : text, take(previous)));
    }
    void mfieldSetValue(int row, const void *) override { log << QStringLiteral("setValue %1").arg(row); }
    void sfieldSetValue(SbString *previous) override
    {
        log << QStringLiteral("sfield ") + take(previous);
        if (onCommit)
            onCommit();
    }
    void fieldSetDefaultValue() override { log << QStringLiteral("default"); }
    void fieldSetIgnored(bool ignored) override { log << QStringLiteral("ignored %1").arg(ignored); }

    QStringList takeLog() { return std::exchange(log, {}); }

    QStringList log;
    std::function<void()> onCommit;
    std::function<void()> onTableCommand;

private:
    void note(const QString &command)
    {
        log << command;
        if (onTableCommand)
            onTableCommand();
    }
    static QString take(SbString *previous)
    {
        const std::unique_ptr<SbString> owned(previous);
        return owned ? QString::fromUtf8(owned->getString()) : QStringLiteral("null");
    }
};

/// A field editor that writes down what it is told.
class RecordingEditor : public HbFieldEditors
{
public:
    RecordingEditor() : HbFieldEditors(nullptr, {}) { }
    void updateEditor() override
    {
        log << QStringLiteral("update");
        HbFieldEditors::updateEditor();
    }
    bool setField(SoField *edited) override
    {
        lastField = edited;
        log << (edited ? QStringLiteral("setField") : QStringLiteral("setField null"));
        return true;
    }
    void refresh() override { log << QStringLiteral("refresh"); }
    void setRefresh(bool on) override { log << QStringLiteral("setRefresh %1").arg(on); }
    void swapRows(int, int) override { }
    void swapColumns(int, int) override { }
    void set1Value(int row, int col, QString text) override
    {
        log << QStringLiteral("set1Value %1 %2 %3").arg(row).arg(col).arg(text);
    }
    void setValue(int, const void *) override { }
    void applyChanges() override { log << QStringLiteral("apply"); }

    QStringList takeLog() { return std::exchange(log, {}); }

    using HbEditors::currentField;
    using HbEditors::currentNode;
    SoField *lastField = nullptr;
    QStringList log;
};

/// A scene-graph object that is referenced as long as this lives.
template <class Node> class Ref
{
public:
    explicit Ref(Node *node = new Node) : m_node(node) { m_node->ref(); }
    ~Ref() { m_node->unref(); }
    Q_DISABLE_COPY(Ref)

    operator Node *() const { return m_node; }
    Node *operator->() const { return m_node; }

private:
    Node *m_node;
};

/// Counts the notifications of a field.
class Listener
{
public:
    explicit Listener(SoField &field)
    {
        m_sensor.setPriority(0);
        m_sensor.attach(&field);
    }
    int take() { return std::exchange(m_count, 0); }

private:
    int m_count = 0;
    SoFieldSensor m_sensor{[](void *self, SoSensor *) { ++static_cast<Listener *>(self)->m_count; }, this};
};

/// Does @p action once the colour dialog is open, which is closed after it in any case.
inline void onceOpen(const std::function<void(QColorDialog &)> &action)
{
    auto *const timer = new QTimer(qApp);
    timer->callOnTimeout([action, timer] {
        const QPointer<QColorDialog> dialog(qobject_cast<QColorDialog *>(QApplication::activeModalWidget()));
        if (!dialog)
            return;
        timer->stop();
        timer->deleteLater();
        action(*dialog);
        if (dialog && dialog->isVisible())
            dialog->reject();
    });
    timer->start(1);
}

/// Shows an editor with its field in the active window.
inline void present(HbFieldEditors &editor, SoField *field)
{
    editor.setField(field);
    editor.refresh();
    editor.show();
    QApplication::setActiveWindow(&editor);
}

/// Opens a cell's editor; where one types in it, or null if the cell has none.
inline QLineEdit *openCell(QTableWidget *table, int row, int col)
{
    QApplication::setActiveWindow(table->window());
    table->setFocus();
    table->setCurrentCell(row, col);
    table->edit(table->model()->index(row, col));
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

/// How often an edit that nobody refreshes commits on Return: for the key and for the end of the edit, which Qt 5 tells
/// twice.
constexpr int commitsOnReturn = QT_VERSION < QT_VERSION_CHECK(6, 0, 0) ? 3 : 2;

/// Types @p text over what @p edit shows, as a person does; QTest itself knows no keys beyond Latin-1.
template <class Edit> void retype(Edit *edit, const QString &text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(edit, &press);
    }
}

inline void enter(QLineEdit *edit, const QString &text, Qt::Key end = Qt::Key_Return)
{
    retype(edit, text);
    QTest::keyClick(edit, end);
}

#endif
