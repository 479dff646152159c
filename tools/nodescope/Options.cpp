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
#include <cstring>

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

} // namespace

std::optional<Options> Options::parse(const QStringList &arguments, int *exitCode)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("Options", text); };
    const auto option = [&](const char *name, const char *text, const char *value = "") {
        return QCommandLineOption(QString::fromLatin1(name), tr(text), QString::fromLatin1(value));
    };
    const QCommandLineOption screenshot
        = option("screenshot", "Saves a picture of the window to <file> and ends.", "file");
    const QCommandLineOption grab = option(
        "grab", "Saves a picture of the editor of the selected node's <field> to <file> and ends. May be repeated.",
        "field>=<file");
    const QCommandLineOption select = option(
        "select", "Selects a node: names and child indices, separated by '/', e.g. Lighthouse/0/Lamp.", "path");
    const QCommandLineOption size = option("size", "The window's size, e.g. 1200x800.", "WxH");
    const QCommandLineOption demo = option("demo", "Plays a short demonstration and ends.");
    const QCommandLineOption libraries
        = option("allow-node-libraries", "Runs shared libraries that are named after node types which the scene uses.");

    const QCommandLineOption config
        = option("print-config", "Prints the preferences, their values and where these come from.");

    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, tr("Shows this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, tr("Shows the version."));
    parser.addOptions({help, version, screenshot, grab, select, size, demo, libraries, config});
    parser.addPositionalArgument(QStringLiteral("scene"), tr("The scene to open."), QStringLiteral("[scene]"));

    const bool parsed = parser.parse(arguments);
    *exitCode = Success;
    if (parsed && parser.isSet(help)) {
        print(stdout, parser.helpText());
        return {};
    }
    if (parsed && parser.isSet(version)) {
        print(stdout, QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion());
        return {};
    }
    if (parsed && parser.isSet(config)) {
        print(stdout, configuration());
        return {};
    }

    Options options;
    options.scene = parser.positionalArguments().value(0);
    options.screenshot = parser.value(screenshot);
    options.grabs = grabsFrom(parser.values(grab));
    options.select = parser.value(select);
    options.size = sizeFrom(parser.value(size));
    options.demo = parser.isSet(demo);
    options.allowNodeLibraries = parser.isSet(libraries);

    QString problem;
    if (!parsed)
        problem = parser.errorText();
    else if (parser.positionalArguments().size() > 1)
        problem = tr("Only one scene can be opened.");
    else if (parser.isSet(size) && !options.size.isValid())
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
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        constexpr const char *names[] = {"-h", "--help", "-v", "--version", "--print-config"};
        return std::any_of(std::begin(names), std::end(names),
                           [&](const char *name) { return std::strcmp(argument, name) == 0; });
    });
}
