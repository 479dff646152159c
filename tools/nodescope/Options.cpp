// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Options.h"

#include <HbGUIManager.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

namespace
{

QString description()
{
    return QCoreApplication::translate("Options",
                                       "Shows a Coin scene (.iv, .wrl), its nodes and their fields, and edits them.\n\n"
                                       "Exit codes:\n"
                                       "  0  all is well\n"
                                       "  1  the scene could not be read\n"
                                       "  2  the command line makes no sense\n"
                                       "  3  a picture could not be taken or written\n"
                                       "  4  --select leads to no node\n"
                                       "  5  the demonstration did not work");
}

QSize sizeFrom(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d{2,5})x(\\d{2,5})$"));
    const QRegularExpressionMatch match = pattern.match(text);
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

/// Split at the first '=': fields have none in their names.
std::vector<Options::Grab> grabsFrom(const QStringList &texts)
{
    std::vector<Options::Grab> grabs;
    for (const QString &text : texts)
        grabs.push_back({text.section(QLatin1Char('='), 0, 0), text.section(QLatin1Char('='), 1)});
    return grabs;
}

bool isWhole(const Options::Grab &grab)
{
    return !grab.field.isEmpty() && !grab.fileName.isEmpty();
}

void print(FILE *stream, const QString &text)
{
    std::fputs(qPrintable(text), stream);
    std::fputc('\n', stream);
}

QString configuration()
{
    const QString file = HbGUIManager::getPreferencesFile();
    const char *const place = QFileInfo::exists(file) ? "# %1" : "# %1 (not there)";
    QStringList lines{QCoreApplication::translate("Options", place).arg(QDir::toNativeSeparators(file))};
    for (const HbGUIManager::Preference &preference : HbGUIManager::getPreferences())
        lines << QStringList({preference.key, preference.value, preference.origin}).join(QLatin1Char('\t'));
    return lines.join(QLatin1Char('\n'));
}

const QString help = QStringLiteral("help");
const QString version = QStringLiteral("version");
const QString config = QStringLiteral("print-config");

void describeOptions(QCommandLineParser &parser)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("Options", text); };
    const auto add = [&](const QStringList &names, const char *text, const char *value = "") {
        parser.addOption(QCommandLineOption(names, tr(text), QString::fromLatin1(value)));
    };
    parser.setApplicationDescription(description());
    add({QStringLiteral("h"), help}, "Shows this help.");
    add({QStringLiteral("v"), version}, "Shows the version.");
    add({QStringLiteral("screenshot")}, "Saves a picture of the window to <file> and ends.", "file");
    add({QStringLiteral("grab")},
        "Saves a picture of the editor of the selected node's <field> to <file> and ends. May be repeated.",
        "field>=<file");
    add({QStringLiteral("select")},
        "Selects a node: names and child indices, separated by '/', e.g. Lighthouse/0/Lamp.", "path");
    add({QStringLiteral("size")}, "The window's size, e.g. 1200x800.", "WxH");
    add({QStringLiteral("demo")}, "Plays a short demonstration and ends.");
    add({QStringLiteral("allow-node-libraries")},
        "Runs shared libraries that are named after node types which the scene uses.");
    add({config}, "Prints the preferences, their values and where these come from.");
    parser.addPositionalArgument(QStringLiteral("scene"), tr("The scene to open; - reads standard input."),
                                 QStringLiteral("[scene]"));
}

/// The text that was asked for in place of the window.
QString textFor(const QCommandLineParser &parser)
{
    if (parser.isSet(help))
        return parser.helpText();
    if (parser.isSet(version))
        return QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
    return parser.isSet(config) ? configuration() : QString();
}

} // namespace

std::optional<Options> Options::parse(const QStringList &arguments, int *exitCode)
{
    QCommandLineParser parser;
    describeOptions(parser);
    const bool parsed = parser.parse(arguments);
    *exitCode = Success;
    if (const QString text = parsed ? textFor(parser) : QString(); !text.isEmpty()) {
        print(stdout, text);
        return {};
    }

    Options options;
    options.scene = parser.positionalArguments().value(0);
    options.screenshot = parser.value(QStringLiteral("screenshot"));
    options.grabs = grabsFrom(parser.values(QStringLiteral("grab")));
    options.select = parser.value(QStringLiteral("select"));
    options.size = sizeFrom(parser.value(QStringLiteral("size")));
    options.demo = parser.isSet(QStringLiteral("demo"));
    options.allowNodeLibraries = parser.isSet(QStringLiteral("allow-node-libraries"));

    const auto tr = [](const char *text) { return QCoreApplication::translate("Options", text); };
    QString problem;
    if (!parsed)
        problem = parser.errorText();
    else if (parser.positionalArguments().size() > 1)
        problem = tr("Only one scene can be opened.");
    else if (parser.isSet(QStringLiteral("size")) && !options.size.isValid())
        problem = tr("A size is written like 1200x800.");
    else if (!std::all_of(options.grabs.begin(), options.grabs.end(), isWhole))
        problem = tr("A picture of an editor is asked for like --grab height=height.png.");
    if (problem.isEmpty())
        return options;
    print(stderr, QStringLiteral("nodescope: ") + problem);
    *exitCode = BadUsage;
    return {};
}

bool Options::asksForText(int argc, char **argv)
{
    const QStringList names{QStringLiteral("-h"), QStringLiteral("-v"), QStringLiteral("--") + help,
                            QStringLiteral("--") + version, QStringLiteral("--") + config};
    return std::any_of(argv + 1, argv + argc,
                       [&](const char *argument) { return names.contains(QString::fromLocal8Bit(argument)); });
}
