// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEFILE_H
#define SCENEFILE_H

#include "SaveLosses.h"

#include <Inventor/nodes/SoSeparator.h>

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <memory>

/**
 * What a scene file holds: its top-level nodes, which may be several, as children of one root.
 *
 * The root itself stands in no file; writing it writes its children, one after the other, so that a file
 * gains no level by being opened and saved, and nodes shared between top-level nodes stay shared.
 */
class SceneRoot : public SoSeparator
{
public:
    void write(SoWriteAction *action) override;
};

/// How a scene stands on disk; a scene is saved the way it was opened.
struct SceneFormat {
    bool binary = false;
    bool gzip = false;
    QByteArray header; ///< the first line of a VRML file; empty: Coin's current Inventor header
};

/// While it stands, files that a scene refers to are also looked up beside the scene.
class SceneDirectory
{
public:
    explicit SceneDirectory(const QString &sceneFileName);
    ~SceneDirectory();
    SceneDirectory(const SceneDirectory &) = delete;
    SceneDirectory &operator=(const SceneDirectory &) = delete;

private:
    const QByteArray m_path;
};

/// The outcome of reading a file: no root means failure, and then the messages say why.
struct SceneFile {
    std::shared_ptr<SoSeparator> root;
    SceneFormat format;
    SaveLosses losses;
    std::shared_ptr<SceneDirectory> directory; ///< textures are read when they are first drawn
    QStringList messages;
};

/// Told now and then while a file is read: the part of its bytes that have been, from 0 to 1.
using ReadingProgress = std::function<void(double part)>;

/// In place of a file's name: the scene comes through standard input.
inline const QLatin1String standardInput("-");

/// Reads a regular file, or standard input to its end.
SceneFile readScene(const QString &fileName, const ReadingProgress &progress = {});

/**
 * Replaces @p fileName whole or, on failure, leaves it as it was and says why in @p messages.
 *
 * Numbers are written with as many digits as they need to come back bit for bit. Infinity and NaN have no
 * notation that Coin reads again: the largest number and zero are written instead, with a message.
 * @p messages may therefore also be filled on success.
 */
bool writeScene(SoNode *root, const SceneFormat &format, const QString &fileName, QStringList *messages);

#endif
