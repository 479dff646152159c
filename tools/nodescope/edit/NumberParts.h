// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NUMBERPARTS_H
#define NUMBERPARTS_H

#include <QList>
#include <QString>

#include <vector>

class QLineEdit;
class QWidget;
class SoField;

/// Values of several floats as the library's editors show them: a rotation is an axis and an angle.
namespace NumberParts
{
using Numbers = std::vector<float>;

/// The value's numbers in the order of their edits; none for types that consist of something else.
Numbers of(const SoField &field);
/// Gives a field of a type that has such numbers the value that they make.
void set(SoField &field, const Numbers &numbers);

/// The edits of the numbers, in the order of their making.
QList<QLineEdit *> editsIn(const QWidget &editor);

/// As few digits as read back to the same bits.
QString shortest(float number);
} // namespace NumberParts

#endif
