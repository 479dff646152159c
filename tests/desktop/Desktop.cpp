// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QScreen>

#include <algorithm>

namespace
{
constexpr int patience = 5000; // ms, for what must show

QString number(int value)
{
    return QString::number(value);
}

void fail(const QString &text)
{
    QTest::qFail(qPrintable(text), __FILE__, __LINE__);
}
} // namespace

QRect Control::place() const
{
    const QJsonArray place = facts[QStringLiteral("place")].toArray();
    return QRect(place[0].toInt(), place[1].toInt(), place[2].toInt(), place[3].toInt());
}

Desktop::Desktop(const QByteArray &scene, const QStringList &arguments, const QProcessEnvironment &environment)
    : m_arguments(arguments), m_environment(environment)
{
    if (!scene.isEmpty()) {
        QFile file(sceneFile());
        file.open(QIODevice::WriteOnly);
        file.write("#Inventor V2.1 ascii\n\n" + scene + '\n');
        m_arguments << sceneFile();
    }
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_directory.path());
    m_environment.insert(QStringLiteral("XDG_DATA_HOME"), m_directory.path());
    m_environment.insert(QStringLiteral("NSC_NO_PLUGINS"), QStringLiteral("false"));
    m_environment.insert(QStringLiteral("NSC_PLUGINS_DIRECTORY"), QStringLiteral(PROBE));
    start();
}

Desktop::~Desktop()
{
    stop();
}

void Desktop::restart()
{
    stop();
    start();
}

void Desktop::start()
{
    m_tool.setProcessEnvironment(m_environment);
    m_tool.setProcessChannelMode(QProcess::MergedChannels);
    m_tool.start(QStringLiteral(NODESCOPE), m_arguments);
    QElapsedTimer waited;
    waited.start();
    while (state()[QStringLiteral("title")].toString().isEmpty() && waited.elapsed() < 4 * patience)
        QTest::qWait(20);
    xdotool({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
             QStringLiteral("--pid"), QString::number(m_tool.processId()), QStringLiteral("windowactivate")});
    const auto isMain = [](const Control &control) { return control.is("window") && control.is("active"); };
    QRect before;
    QRect now;
    do { // the window manager may move it still
        before = now;
        QTest::qWait(50);
        const QList<Control> windows = find(isMain);
        now = windows.isEmpty() ? QRect() : windows.first().place();
    } while ((now.isEmpty() || now != before) && waited.elapsed() < 4 * patience);
}

void Desktop::stop()
{
    m_tool.waitForReadyRead(1);
    m_output += m_tool.readAll();
    if (!isRunning())
        fail(QStringLiteral("nodescope has died: ") + QString::fromLocal8Bit(m_output.right(4000)));
    else if (m_output.contains("runtime error:") || m_output.contains("AddressSanitizer"))
        fail(QString::fromLocal8Bit(m_output.right(4000)));
    if (COUNTS_LINES) { // which a killed process does not tell
        m_tool.closeWriteChannel();
        m_tool.waitForFinished(patience);
    }
    m_tool.kill();
    m_tool.waitForFinished();
    m_output.clear();
}

void Desktop::xdotool(const QStringList &arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    if (!tool.waitForFinished(2 * patience) || tool.exitCode() != 0)
        fail(QStringLiteral("xdotool %1: %2")
                 .arg(arguments.join(QLatin1Char(' ')), QString::fromLocal8Bit(tool.readAllStandardError())));
}

void Desktop::move(const QPoint &place)
{
    xdotool({QStringLiteral("mousemove"), QStringLiteral("--sync"), number(place.x()), number(place.y())});
}

/// Two clicks of a test are never taken for a double click.
void Desktop::click(const QPoint &place, int button)
{
    constexpr int doubleClickTime = 500;
    if (m_sinceClick.isValid() && (place - m_clicked).manhattanLength() < 12)
        QTest::qWait(static_cast<int>(std::max<qint64>(0, doubleClickTime - m_sinceClick.elapsed())));
    xdotool(
        {QStringLiteral("mousemove"), number(place.x()), number(place.y()), QStringLiteral("click"), number(button)});
    m_sinceClick.start();
    m_clicked = place;
}

void Desktop::doubleClick(const Control &control)
{
    const QPoint place = control.middle();
    xdotool({QStringLiteral("mousemove"), number(place.x()), number(place.y()), QStringLiteral("click"),
             QStringLiteral("--repeat"), QStringLiteral("2"), QStringLiteral("--delay"), QStringLiteral("50"),
             QStringLiteral("1")});
    m_sinceClick.start();
    m_clicked = place;
}

void Desktop::dragAndHold(const QPoint &from, const QPoint &to, int button)
{
    constexpr int steps = 8;
    QStringList arguments{QStringLiteral("mousemove"), number(from.x()), number(from.y()), QStringLiteral("mousedown"),
                          number(button)};
    for (int i = 1; i <= steps; ++i) {
        const QPoint place = from + (to - from) * i / steps;
        arguments << QStringLiteral("sleep") << QStringLiteral("0.01") << QStringLiteral("mousemove")
                  << number(place.x()) << number(place.y());
    }
    xdotool(arguments);
}

void Desktop::release(int button)
{
    xdotool({QStringLiteral("mouseup"), number(button)});
}

void Desktop::drag(const QPoint &from, const QPoint &to, int button)
{
    dragAndHold(from, to, button);
    release(button);
}

void Desktop::wheel(const QPoint &place, int steps)
{
    xdotool({QStringLiteral("mousemove"), number(place.x()), number(place.y()), QStringLiteral("click"),
             QStringLiteral("--repeat"), number(std::abs(steps)), QStringLiteral("--delay"), QStringLiteral("10"),
             steps > 0 ? QStringLiteral("4") : QStringLiteral("5")});
}

void Desktop::type(const QString &text)
{
    xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("8"), QStringLiteral("--"), text});
}

void Desktop::press(const QStringList &keys)
{
    xdotool(QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("8")} + keys);
}

QJsonObject Desktop::state()
{
    m_tool.readAll();
    m_tool.write("\n");
    QElapsedTimer waited;
    waited.start();
    QByteArray answer;
    while (isRunning() && waited.elapsed() < 4 * patience) {
        m_tool.waitForReadyRead(50);
        answer += m_tool.readAll();
        const int start = static_cast<int>(answer.indexOf("\nprobe: "));
        const int end = start < 0 ? -1 : static_cast<int>(answer.indexOf('\n', start + 1));
        if (end < 0)
            continue;
        m_output += answer.left(start) + answer.mid(end);
        return QJsonDocument::fromJson(answer.mid(start + 8, end - start - 8)).object();
    }
    m_output += answer;
    return {};
}

QString Desktop::value(const char *field)
{
    return state()[QStringLiteral("fields")]
        .toObject()[QLatin1String(field)]
        .toObject()[QStringLiteral("text")]
        .toString();
}

bool Desktop::isFlagged(const char *field, const char *flag)
{
    return state()[QStringLiteral("fields")].toObject()[QLatin1String(field)].toObject()[QLatin1String(flag)].toBool();
}

QList<Control> Desktop::find(const std::function<bool(const Control &)> &fits)
{
    QList<Control> found;
    const QJsonArray all = state()[QStringLiteral("controls")].toArray();
    for (const QJsonValue &facts : all)
        if (const Control control{facts.toObject()}; fits(control))
            found << control;
    std::stable_sort(found.begin(), found.end(), [](const Control &a, const Control &b) {
        const QPoint first = a.place().topLeft();
        const QPoint second = b.place().topLeft();
        return std::abs(first.y() - second.y()) > 8 ? first.y() < second.y() : first.x() < second.x();
    });
    return found;
}

Control Desktop::waitFor(const std::function<bool(const Control &)> &fits, int index, const QString &what)
{
    QElapsedTimer waited;
    waited.start();
    do {
        const QList<Control> found = find(fits);
        if (found.size() > index)
            return found[index];
        QTest::qWait(20);
    } while (isRunning() && waited.elapsed() < patience);
    fail(QStringLiteral("Nothing on the screen is ") + what);
    return {};
}

namespace
{
bool isOf(const Control &control, const char *field, const char *classOrName)
{
    const QLatin1String wanted(classOrName);
    return control.facts[QStringLiteral("field")].toString() == QLatin1String(field)
        && (control.facts[QStringLiteral("class")].toString() == wanted
            || control.facts[QStringLiteral("name")].toString() == wanted);
}
} // namespace

Control Desktop::control(const char *field, const char *classOrName, int index)
{
    return waitFor([=](const Control &control) { return isOf(control, field, classOrName); }, index,
                   QStringLiteral("%1 %2 of %3").arg(QLatin1String(classOrName), number(index), QLatin1String(field)));
}

QList<Control> Desktop::controls(const char *field, const char *classOrName)
{
    return find([=](const Control &control) { return isOf(control, field, classOrName); });
}

Control Desktop::named(const char *name, const char *className)
{
    const QString wanted = QString::fromUtf8(name);
    const QLatin1String kind(className);
    return waitFor(
        [=](const Control &control) {
            const QJsonObject &facts = control.facts;
            return (kind.isEmpty() || facts[QStringLiteral("class")].toString() == kind)
                && (facts[QStringLiteral("name")].toString() == wanted || control.text() == wanted
                    || facts[QStringLiteral("accessible")].toString() == wanted);
        },
        0, wanted);
}

Control Desktop::cell(const char *field, int row, int column)
{
    return waitFor(
        [=](const Control &control) {
            return isOf(control, field, "cell") && control.facts[QStringLiteral("row")].toInt() == row
                && control.facts[QStringLiteral("column")].toInt() == column;
        },
        0, QStringLiteral("cell %1, %2 of %3").arg(number(row), number(column), QLatin1String(field)));
}

void Desktop::selectRow(const char *text, int index)
{
    const QString wanted = QString::fromUtf8(text);
    click(
        waitFor([=](const Control &control) { return isOf(control, "", "cell") && control.text().startsWith(wanted); },
                index, QStringLiteral("a line of the tree: ") + wanted));
    QTest::qWait(30);
}

void Desktop::choose(const char *menu, const char *entry)
{
    click(named(menu, "menu"));
    const QString wanted = QString::fromUtf8(entry);
    click(waitFor(
        [=](const Control &control) {
            return control.facts[QStringLiteral("class")] == QLatin1String("entry")
                && control.text().startsWith(wanted);
        },
        0, wanted));
}

QImage Desktop::screen() const
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

QRect Desktop::view()
{
    return named("Picture of the scene").place();
}

void startWindowManager()
{
    static struct Manager : QProcess {
        ~Manager() override
        {
            kill();
            waitForFinished();
        }
    } manager;
    manager.start(QStringLiteral("openbox"), QStringList());
    QVERIFY2(manager.waitForStarted(), "openbox is not installed");
}
