// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FILEFIXTURE_H
#define FILEFIXTURE_H

#include "TestSupport.h"

#include "tools/nodescope/CoinSetup.h"

#include <QFile>
#include <QTemporaryDir>

/// Files in a directory of their own, read by nodescope's rules.
class FileFixture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setUpCoin(false);
        Complaints::listen();
    }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

protected:
    QString write(const QByteArray &content, const QString &name = QStringLiteral("scene.iv"))
    {
        QFile file(m_directory.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }

    static QByteArray contentOf(const QString &fileName)
    {
        QFile file(fileName);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    QTemporaryDir m_directory;
};

#endif
