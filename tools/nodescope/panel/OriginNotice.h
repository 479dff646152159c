// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ORIGINNOTICE_H
#define ORIGINNOTICE_H

#include <QLabel>

struct NodeOrigin;

/// Says why a node cannot be edited that is not saved with its scene, and leads to where it can; else hidden.
class OriginNotice : public QLabel
{
    Q_OBJECT

public:
    explicit OriginNotice(QWidget *parent = nullptr);

    void show(const NodeOrigin &origin);

Q_SIGNALS:
    void fileWanted(const QString &fileName);

private:
    QString m_fileName;
};

#endif
