// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SAVELOSSES_H
#define SAVELOSSES_H

#include <QStringList>

class SourceText;

/// What a file holds that saving the scene that was read from it drops.
struct SaveLosses {
    int comments = 0;
    int connections = 0; ///< of fields, which are not written again
    int drivenValues = 0; ///< in whose place the values of the moment are written

    /// @p written is the scene as it is written, right after it was read from @p source.
    static SaveLosses between(const SourceText &source, const SourceText &written);

    bool any() const { return comments > 0 || connections > 0 || drivenValues > 0; }
    /// Whether nothing is lost but values that were those of some moment, if the tool has saved the file before.
    bool areMomentary() const { return comments == 0 && connections == 0; }
    /// One line for each kind: "12 comments".
    QStringList lines() const;
};

#endif
