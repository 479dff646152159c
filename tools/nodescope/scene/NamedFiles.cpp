// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NamedFiles.h"

#include "SceneGuard.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/VRMLnodes/SoVRMLInline.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/lists/SbStringList.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoFile.h>
#include <Inventor/nodes/SoSeparator.h>

namespace
{
/// Where Coin finds a file, which it opens to find it; empty where it will say so itself.
QString pathOf(const SbString &name)
{
    const QString text = QFile::decodeName(name.getString());
    const SbStringList &directories = SoInput::getDirectories();
    for (int i = 0; i < directories.getLength() && !text.isEmpty(); ++i) {
        const QFileInfo file(QDir(QFile::decodeName(directories[i]->getString())), text);
        if (file.exists())
            return file.canonicalFilePath();
    }
    return {};
}

/// A file that is being read, within those that name it.
class NamedFile
{
public:
    explicit NamedFile(const SbString &name) : m_path(pathOf(name)), m_obstacle(obstacle()) { open().append(m_path); }
    ~NamedFile() { open().removeLast(); }
    NamedFile(const NamedFile &) = delete;
    NamedFile &operator=(const NamedFile &) = delete;

    /// Where it cannot be read: says why.
    bool refuse(SoInput *input) const
    {
        if (!m_obstacle.isEmpty())
            SoReadError::post(input, "%s", m_obstacle.toUtf8().constData());
        return !m_obstacle.isEmpty();
    }

private:
    static QStringList &open()
    {
        static QStringList files;
        return files;
    }

    QString obstacle() const
    {
        constexpr int mostLevels = 100;
        const auto tr = [](const char *text) { return QCoreApplication::translate("NamedFiles", text); };
        if (m_path.isEmpty())
            return {};
        if (open().contains(m_path))
            return tr("%1 names itself, or a file that names it, and is not read again").arg(m_path);
        if (open().size() >= mostLevels)
            return tr("%1 is not read: more than %2 files name each other").arg(m_path).arg(mostLevels);
        return whyUnreadable(m_path);
    }

    QString m_path;
    QString m_obstacle;
};

class GuardedFile : public SoFile
{
    SbBool readNamedFile(SoInput *input) override
    {
        const NamedFile file(name.getValue());
        if (!file.refuse(input))
            return SoFile::readNamedFile(input);
        getChildren()->truncate(0); // of the file before
        return TRUE;
    }
};

class GuardedInline : public SoVRMLInline
{
    /// Coin's own, which is private to it.
    SbBool readLocalFile(SoInput *input) override
    {
        if (url.getNum() == 0)
            return TRUE;
        const NamedFile file(url[0]);
        if (file.refuse(input) || !input->pushFile(url[0].getString()))
            return TRUE;
        setFullURLName(input->getCurFileName());
        if (SoSeparator *const content = SoDB::readAll(input))
            setChildData(content);
        return TRUE;
    }
};
} // namespace

void guardNamedFiles()
{
    SoType::overrideType(SoFile::getClassTypeId(), []() -> void * { return new GuardedFile; });
    SoType::overrideType(SoVRMLInline::getClassTypeId(), []() -> void * { return new GuardedInline; });
}
