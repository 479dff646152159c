// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef DESKTOP_H
#define DESKTOP_H

#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// Something on the screen, as the probe tells of it. Null (class empty) where nothing was found.
struct Control {
    QJsonObject facts;

    bool isThere() const { return !facts.isEmpty(); }
    QString text() const { return facts[QStringLiteral("text")].toString(); }
    bool is(const char *fact) const
    {
        return facts[QLatin1String(fact)].toBool();
    } ///< "enabled", "checked", "focus", ...
    QRect place() const; ///< in pixels of the screen; only what can be seen of it
    QPoint middle() const { return place().center(); }
};

/**
 * A running nodescope that is driven by real X events and looked at from outside.
 *
 * The suite runs under a virtual X server with a window manager. Each object starts a tool of its own, with settings of
 * its own, and ends it; one that has died or that a sanitizer has complained about fails the test. What was done needs
 * a moment to show: ask with QTRY_COMPARE and QTRY_VERIFY, which ask again until it does.
 *
 *     Desktop tool("Cube { width 1 }");
 *     tool.selectRow("Cube");
 *     tool.doubleClick(tool.control("Cube.width", "QLineEdit"));
 *     tool.type("2.5");
 *     tool.press("Return");
 *     QTRY_COMPARE(tool.value("width"), "2.5");
 *     tool.press("ctrl+z");
 */
class Desktop
{
public:
    /// Opens a scene, written without its header line, and waits for the window. No scene: none is opened.
    explicit Desktop(const QByteArray &scene, const QStringList &arguments = {},
                     const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    ~Desktop();

    /// Ends the tool and starts it again with the same settings and the file as it is now.
    void restart();
    QString sceneFile() const { return m_directory.filePath(QStringLiteral("scene.iv")); }
    /// Where the tool keeps its settings, and room for files.
    QString directory() const { return m_directory.path(); }
    bool isRunning() const { return m_tool.state() == QProcess::Running; }

    void click(const QPoint &place, int button = 1);
    void click(const Control &control, int button = 1) { click(control.middle(), button); }
    void doubleClick(const Control &control);
    void drag(const QPoint &from, const QPoint &to, int button = 1);
    /// Leaves the button down there: for keys in the middle of a drag. Ends with release().
    void dragAndHold(const QPoint &from, const QPoint &to, int button = 1);
    void release(int button = 1);
    void move(const QPoint &place);
    void wheel(const QPoint &place, int steps); ///< away from the user where positive
    void type(const QString &text);
    void press(const QStringList &keys); ///< as in "ctrl+shift+Tab"; see the list of X keysyms
    void press(const char *key) { press(QStringList{QString::fromLatin1(key)}); }
    /// Holds a key, say "ctrl", during @p action.
    template <class Action> void holding(const char *key, Action action)
    {
        xdotool({QStringLiteral("keydown"), QLatin1String(key)});
        action();
        xdotool({QStringLiteral("keyup"), QLatin1String(key)});
    }

    /// Everything that the probe tells: "title", "modified", "type" and "node" (the selected node's), "fields",
    /// "controls".
    QJsonObject state();
    QString selectedType() { return state()[QStringLiteral("type")].toString(); }
    QString selectedName() { return state()[QStringLiteral("node")].toString(); }
    /// The text of a field of the selected node, and whether it is "default" or "ignored".
    QString value(const char *field);
    bool isFlagged(const char *field, const char *flag);
    bool isModified() { return state()[QStringLiteral("modified")].toBool(); }

    /// Of a field's editor, as in "Cube.width", by class or object name; the
    /// first of several, from the left and the top, or the one of this index. It is waited for, up to 5 s.
    Control control(const char *field, const char *classOrName, int index = 0);
    /// By object name, accessible name, or the text of an entry, a button or a label, anywhere.
    Control named(const char *name, const char *className = "");
    /// All of them, without waiting.
    QList<Control> controls(const char *field, const char *classOrName);
    /// A cell of the table of a field's editor, counted from 0.
    Control cell(const char *field, int row, int column = 0);
    /// A line of the scene's tree by its text's beginning; clicked on.
    void selectRow(const char *text, int index = 0);
    /// Menu and the beginning of an entry, as in choose("&Edit", "&Undo").
    void choose(const char *menu, const char *entry);

    QImage screen() const;
    QColor pixel(const QPoint &place) const { return screen().pixelColor(place); }
    /// The 3-D view.
    QRect view();

private:
    void start();
    void stop();
    void xdotool(const QStringList &arguments);
    QList<Control> find(const std::function<bool(const Control &)> &fits);
    Control waitFor(const std::function<bool(const Control &)> &fits, int index, const QString &what);

    QTemporaryDir m_directory;
    QStringList m_arguments;
    QProcessEnvironment m_environment;
    QProcess m_tool;
    QByteArray m_output;
    QElapsedTimer m_sinceClick;
    QPoint m_clicked;
};

/// Starts the window manager of a suite.
void startWindowManager();

#endif
