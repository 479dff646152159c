// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "StartScreen.h"

#include "FileActions.h"
#include "RecentFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace
{

constexpr int mostListed = 6;

/// Those that came with the tool, beside it or in the folder that it was built from.
QFileInfoList exampleScenes()
{
    QDir directory(QCoreApplication::applicationDirPath());
    constexpr int levelsUp = 4;
    for (int level = 0; level < levelsUp; ++level) {
        for (const char *place : {"share/nodescope/scenes", "examples/scenes"}) {
            const QDir scenes(directory.filePath(QLatin1String(place)));
            const QFileInfoList files = scenes.entryInfoList({QStringLiteral("*.iv")}, QDir::Files, QDir::Name);
            if (!files.isEmpty())
                return files;
        }
        directory.cdUp();
    }
    return {};
}

QFont scaled(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace

StartScreen::StartScreen(FileActions *files, QWidget *parent)
    : QWidget(parent), m_files(files), m_column(new QVBoxLayout)
{
    auto *const title = new QLabel(QStringLiteral("nodescope"));
    title->setFont(scaled(font(), 2));
    m_column->addWidget(title);
    m_column->addWidget(new QLabel(tr("Shows a Coin scene and edits the fields of its nodes.")));
    m_column->addSpacing(fontMetrics().height());
    auto *const open = new QPushButton(tr("&Open a Scene..."));
    connect(open, &QPushButton::clicked, files, &FileActions::chooseAndOpen);
    m_column->addWidget(open, 0, Qt::AlignLeft);
    m_column->addWidget(new QLabel(tr("or drop a file (.iv, .wrl) on this window")));

    auto *const across = new QHBoxLayout;
    across->addStretch(1);
    across->addLayout(m_column);
    across->addStretch(1);
    auto *const down = new QVBoxLayout(this);
    down->addStretch(1);
    down->addLayout(across);
    down->addStretch(2);
    connect(files->recent(), &RecentFiles::changed, this, &StartScreen::list);
    list();
}

void StartScreen::list()
{
    if (m_lists) {
        m_lists->hide();
        m_lists->deleteLater(); // one of its links may be what called us
    }
    m_lists = new QWidget;
    auto *const column = new QVBoxLayout(m_lists);
    column->setContentsMargins(0, fontMetrics().height(), 0, 0);
    m_column->addWidget(m_lists);
    const QStringList recent = m_files->recent()->files().mid(0, mostListed);
    if (!recent.isEmpty())
        addHeading(tr("Recent"));
    for (const QString &file : recent)
        addFile(file, QDir::toNativeSeparators(QFileInfo(file).path()));
    const QFileInfoList examples = exampleScenes();
    if (!examples.isEmpty())
        addHeading(tr("Examples"));
    for (const QFileInfo &file : examples)
        addFile(file.filePath(), {});
}

void StartScreen::addHeading(const QString &text)
{
    auto *const heading = new QLabel(text);
    QFont bold = font();
    bold.setBold(true);
    heading->setFont(bold);
    m_lists->layout()->addWidget(heading);
}

void StartScreen::addFile(const QString &fileName, const QString &where)
{
    const QString name = QFileInfo(fileName).fileName();
    auto *const link = new QLabel;
    const QString target = QUrl::fromLocalFile(fileName).toString(QUrl::FullyEncoded);
    const QString shown = fontMetrics().elidedText(where, Qt::ElideMiddle, fontMetrics().averageCharWidth() * 40);
    link->setText(QStringLiteral("<a href=\"%1\">%2</a>&nbsp;&nbsp;%3")
                      .arg(target.toHtmlEscaped(), name.toHtmlEscaped(), shown.toHtmlEscaped()));
    link->setObjectName(name);
    link->setToolTip(QDir::toNativeSeparators(fileName));
    link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(link, &QLabel::linkActivated, m_files, [this, fileName] { m_files->open(fileName); });
    m_lists->layout()->addWidget(link);
}
