// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "Comparison.h"

#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/SceneTree.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <iostream>
#include <stdexcept>

namespace
{
constexpr double aim = 1.2;

QString largestModel()
{
    QFileInfo largest;
    QDirIterator files(QStringLiteral("/usr/share/inventor/data"), {QStringLiteral("*.iv")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        if (files.fileInfo().size() > largest.size())
            largest = files.fileInfo();
    }
    return largest.filePath();
}

void check(bool isRead)
{
    if (!isRead)
        throw std::runtime_error("the scene cannot be read");
}

double secondsToRead(const QString &file)
{
    SoSeparator *root = nullptr;
    const double seconds = secondsOf([&] {
        SoInput input;
        input.openFile(QFile::encodeName(file).constData());
        root = SoDB::readAll(&input);
    });
    check(root);
    root->ref();
    root->unref();
    return seconds;
}

double secondsToOpen(const QString &file)
{
    SceneDocument document;
    QStringList messages;
    bool isOpen = false;
    const double seconds = secondsOf([&] { isOpen = document.open(file, &messages); });
    check(isOpen);
    return seconds;
}

double secondsToShow(const QString &file)
{
    SceneDocument document;
    SceneTree tree;
    QStringList messages;
    bool isOpen = false;
    const double seconds = secondsOf([&] {
        isOpen = document.open(file, &messages);
        tree.setScene(document.root());
    });
    check(isOpen);
    tree.setScene(nullptr);
    return seconds;
}
} // namespace

void addSceneBenchmarks(const QString &file)
{
    const QString scene = file.isEmpty() ? largestModel() : file;
    if (!QFileInfo(scene).isFile()) {
        std::cerr << "Opening a scene is left out: name one, or install the package inventor-data.\n";
        return;
    }
    const auto addOpening = [&](const char *what, double (*seconds)(const QString &)) {
        compare({QFileInfo(scene).fileName().toStdString() + what, "SoDB::readAll", aim}, [=] {
            return Sides{[=] { return seconds(scene); }, [=] { return secondsToRead(scene); }};
        });
    };
    addOpening(" opened as a document", secondsToOpen);
    addOpening(" opened and shown as a tree", secondsToShow);
}
