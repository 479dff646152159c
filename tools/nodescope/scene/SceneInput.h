// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEINPUT_H
#define SCENEINPUT_H

#include "SceneFile.h"

#include <QElapsedTimer>

#include <Inventor/SoInput.h>

/// Tells how far it has come. Of a packed file, whose length is not known before, it tells nothing.
class SceneInput : public SoInput
{
public:
    SceneInput(qint64 size, ReadingProgress progress) : m_size(size), m_progress(std::move(progress))
    {
        m_sinceTold.start();
    }

    using SoInput::read;
    SbBool read(SbName &name, SbBool isIdentifier) override { return tell(SoInput::read(name, isIdentifier)); }
    SbBool read(int &number) override { return tell(SoInput::read(number)); }
    SbBool read(float &number) override { return tell(SoInput::read(number)); }
    SbBool readBinaryArray(float *numbers, int length) override
    {
        return tell(SoInput::readBinaryArray(numbers, length));
    }

private:
    SbBool tell(SbBool isRead)
    {
        constexpr unsigned seldom = 1024;
        constexpr qint64 interval = 100; // milliseconds
        const bool isTime = ++m_count % seldom == 0 && m_sinceTold.elapsed() >= interval;
        if (!isTime || !m_progress || m_size <= 0)
            return isRead;
        m_sinceTold.start();
        m_progress(qMin(1.0, double(getNumBytesRead()) / double(m_size)));
        return isRead;
    }

    const qint64 m_size;
    const ReadingProgress m_progress;
    QElapsedTimer m_sinceTold;
    unsigned m_count = 0;
};

#endif
