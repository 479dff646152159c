// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEOUTPUT_H
#define SCENEOUTPUT_H

#include <Inventor/SoOutput.h>

#include <QByteArray>

struct SceneFormat;

/// Coin's output into memory, with numbers that come back exactly when they are read again.
class SceneOutput : public SoOutput
{
public:
    explicit SceneOutput(const SceneFormat &format);
    ~SceneOutput() override;

    /// The bytes of the file that was written so far.
    QByteArray content() const;
    /// Whether an infinity or NaN had to be replaced.
    bool hasUnreadableNumbers() const { return m_unreadableNumbers; }

    using SoOutput::write;
    void write(float number) override;
    void write(double number) override;

private:
    template <class Real> void writeShortest(Real number);

    const bool m_gzip;
    bool m_unreadableNumbers = false;
};

#endif
