// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NUMBERFORM_H
#define NUMBERFORM_H

#include <QString>

class SoField;

/// What numbers a field, or one component of it, can hold.
struct NumberForm {
    enum class Kind { None, Whole, Single, Double };

    /// What a text means.
    struct Reading {
        QString text; ///< plain numbers, exact, as every editor and Coin read them
        double value = 0; ///< of the first one
        QString error; ///< a sentence; empty where the text could be read
        bool isUnfinished = false; ///< may become readable by more of it

        bool isReadable() const { return error.isEmpty(); }
    };

    Kind kind = Kind::None; ///< none: names, texts, images, nodes
    int count = 1; ///< of the numbers in one text, with spaces between them
    double least = 0;
    double most = 0;
    bool isAngle = false; ///< of several numbers the last one, as in a rotation
    bool isShare = false; ///< lies between 0 and 1 as a rule: a part of a colour
    int base = 10;

    /// All numbers of a value; of one value of a field that holds many.
    static NumberForm of(const SoField &field);
    /// For an edit that shows only one of them.
    NumberForm component() const;

    Reading read(const QString &text) const;
    /// The number with as few digits as tell it.
    QString written(double value) const;

private:
    QString range() const;
    Reading readOne(const QString &text, bool mayBeAngle) const;
    bool isPlain(const QString &text, double value) const;
};

#endif
