// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef OPTIONS_H
#define OPTIONS_H

#include <QSize>
#include <QStringList>

#include <optional>
#include <vector>

/// What scripts learn from the exit code; listed in --help.
enum ExitCode : int {
    Success = 0,
    SceneUnreadable = 1,
    BadUsage = 2,
    ScreenshotFailed = 3,
    PathNotFound = 4,
    DemoFailed = 5
};

/// The command line.
struct Options {
    /// A field of the selected node, and where to save the picture of its editor.
    struct Grab {
        QString field;
        QString fileName;
    };

    QString scene;
    QString screenshot;
    std::vector<Grab> grabs;
    QString select;
    QSize size; ///< invalid: as the window was last
    bool demo = false;
    bool allowNodeLibraries = false;

    /// Whether nobody sits in front of the window.
    bool isScripted() const { return demo || !screenshot.isEmpty() || !grabs.empty(); }

    /// Nothing where the program is to end at once, with @p exitCode, after what was printed.
    static std::optional<Options> parse(const QStringList &arguments, int *exitCode);
    /// Whether only text was asked for, which needs no display.
    static bool asksForText(int argc, char **argv);
};

#endif
