// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoinEventLoop.h"
#include "CoinSetup.h"
#include "Demo.h"
#include "EditorPicture.h"
#include "FieldPanel.h"
#include "MainWindow.h"
#include "Options.h"
#include "SceneDocument.h"
#include "SceneView.h"

#include <QApplication>
#include <QPixmap>

#include <cstdio>
#include <memory>

namespace
{

void complain(const QString &text)
{
    std::fprintf(stderr, "nodescope: %s\n", qPrintable(text));
}

int openAndSelect(MainWindow &window, const Options &options)
{
    if (!options.scene.isEmpty() && !window.open(options.scene)) {
        const QStringList messages = window.messages();
        for (const QString &message : messages)
            complain(message);
        return SceneUnreadable;
    }
    QString problem;
    if (options.select.isEmpty() || window.select(options.select, &problem))
        return Success;
    complain(problem);
    return PathNotFound;
}

int saveScreenshot(MainWindow &window, const QString &fileName)
{
    if (window.grab().save(fileName))
        return Success;
    complain(QCoreApplication::translate("main", "The screenshot could not be written to %1").arg(fileName));
    return ScreenshotFailed;
}

int saveEditor(const MainWindow &window, const Options::Grab &grab)
{
    QWidget *const editor = window.panel()->editorOf(grab.field);
    if (editor && pictureOf(*editor).save(grab.fileName))
        return Success;
    complain(editor ? QCoreApplication::translate("main", "The picture could not be written to %1").arg(grab.fileName)
                    : QCoreApplication::translate("main", "The selected node has no field %1").arg(grab.field));
    return ScreenshotFailed;
}

/// Ends the program with the first exit code that is not zero, after the pictures.
void finish(MainWindow &window, const Options &options, int exitCode)
{
    const auto note = [&exitCode](int code) {
        if (exitCode == Success)
            exitCode = code;
    };
    for (const Options::Grab &grab : options.grabs)
        note(saveEditor(window, grab));
    if (!options.screenshot.isEmpty())
        note(saveScreenshot(window, options.screenshot));
    QCoreApplication::exit(exitCode);
}

/// Calls @p action once, after the first frame is on the screen.
template <class Action> void whenPainted(MainWindow &window, Action action)
{
    auto *once = new QObject(&window);
    const auto run = [once, action] {
        delete once;
        action();
    };
    if (window.view() && window.document()->isOpen())
        QObject::connect(window.view(), &SceneView::painted, once, run, Qt::QueuedConnection);
    else
        QTimer::singleShot(0, once, run);
}

void runScript(MainWindow &window, const Options &options, int exitCode)
{
    if (!options.demo || exitCode != Success) {
        finish(window, options, exitCode);
        return;
    }
    auto *demo = new Demo(&window);
    QObject::connect(demo, &Demo::finished, &window, [&window, options](bool worked) {
        if (!worked)
            complain(QCoreApplication::translate("main", "The demonstration did not work with this scene"));
        finish(window, options, worked ? Success : DemoFailed);
    });
    demo->start();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("nodescope"));
    QCoreApplication::setOrganizationName(QStringLiteral("nodescope"));
    QCoreApplication::setApplicationVersion(QStringLiteral(NODESCOPE_VERSION));
    int exitCode = Success;
    if (Options::asksForText(argc, argv)) {
        const QCoreApplication application(argc, argv); // needs no display
        if (!Options::parse(QCoreApplication::arguments(), &exitCode))
            return exitCode;
    }
    const QApplication application(argc, argv);
    const std::optional<Options> options = Options::parse(QCoreApplication::arguments(), &exitCode);
    if (!options)
        return exitCode;

    setUpCoin(options->allowNodeLibraries);
    const CoinEventLoop coinEventLoop;
    MainWindow window;
    if (options->size.isValid())
        window.resize(options->size);
    else if (!options->isScripted())
        window.rememberGeometry();
    if (!options->isScripted()) {
        window.rememberPlugins();
        window.rememberFiles();
    }
    exitCode = openAndSelect(window, *options);
    if (options->isScripted())
        whenPainted(window, [&, exitCode] { runScript(window, *options, exitCode); });
    window.show();
    return QCoreApplication::exec();
}
