// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PLAINDISPLAY_H
#define PLAINDISPLAY_H

#include "PlainRow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include <Inventor/fields/SoFields.h>

/// Showing the value of a field in the controls of its area.
namespace PlainDisplay
{
inline void showText(QLineEdit *edit, const QString &text)
{
    edit->setText(text);
    edit->setCursorPosition(0);
}

template <std::size_t count> void showNumbers(PlainRow &row, const float (&numbers)[count])
{
    for (std::size_t i = 0; i < count; ++i)
        showText(row.edits[i], QString::number(static_cast<double>(numbers[i]), 'g', 6));
}

inline void real(PlainRow &row, SoField &field)
{
    const float number = static_cast<const SoSFFloat &>(field).getValue();
    showNumbers(row, {number});
    row.slider->setValue(static_cast<int>(number));
}

template <class Field> void integer(PlainRow &row, SoField &field)
{
    const auto number = static_cast<const Field &>(field).getValue();
    showText(row.edits[0], QString::number(number));
    row.slider->setValue(static_cast<int>(number));
}

inline void truth(PlainRow &row, SoField &field)
{
    row.boxes[0]->setChecked(static_cast<const SoSFBool &>(field).getValue());
}

inline void choice(PlainRow &row, SoField &field)
{
    const auto &enumeration = static_cast<const SoSFEnum &>(field);
    for (int i = 0; i < enumeration.getNumEnums(); ++i) {
        SbName name;
        if (enumeration.getEnum(i, name) == enumeration.getValue())
            row.combo->setCurrentIndex(i);
    }
}

inline void text(PlainRow &row, SoField &field)
{
    showText(row.line, QString::fromUtf8(static_cast<const SoSFString &>(field).getValue().getString()));
}

inline void name(PlainRow &row, SoField &field)
{
    showText(row.line, QString::fromLatin1(static_cast<const SoSFName &>(field).getValue().getString()));
}

inline void line(PlainRow &row, SoField &field)
{
    SbString text;
    field.get(text);
    row.line->setText(QString::fromUtf8(text.getString()));
}

template <class Field, int count> void vector(PlainRow &row, SoField &field)
{
    const auto &value = static_cast<const Field &>(field).getValue();
    for (int i = 0; i < count; ++i)
        showText(row.edits[static_cast<std::size_t>(i)], QString::number(static_cast<double>(value[i]), 'g', 6));
}

template <class Field> void spins(PlainRow &row, SoField &field)
{
    const auto value = static_cast<const Field &>(field).getValue();
    row.spins[0]->setValue(value[0]);
    row.spins[1]->setValue(value[1]);
}

inline void rotation(PlainRow &row, SoField &field)
{
    SbVec3f axis;
    float angle = 0;
    static_cast<const SoSFRotation &>(field).getValue(axis, angle);
    showNumbers(row, {axis[0], axis[1], axis[2], angle});
}

inline void plane(PlainRow &row, SoField &field)
{
    const SbPlane &plane = static_cast<const SoSFPlane &>(field).getValue();
    const SbVec3f &normal = plane.getNormal();
    showNumbers(row, {normal[0], normal[1], normal[2], plane.getDistanceFromOrigin()});
}

inline void colour(PlainRow &row, SoField &field)
{
    const SbColor value = static_cast<const SoSFColor &>(field).getValue();
    showNumbers(row, {value[0], value[1], value[2]});
    QPixmap pixmap(row.swatch->iconSize());
    pixmap.fill(QColor::fromRgbF(value[0], value[1], value[2]));
    row.swatch->setIcon(pixmap);
}

inline void matrix(PlainRow &row, SoField &field)
{
    const SbMatrix &value = static_cast<const SoSFMatrix &>(field).getValue();
    for (std::size_t i = 0; i < 16; ++i)
        showText(row.edits[i], QString::number(static_cast<double>(value[i / 4][i % 4]), 'g', 6));
    line(row, field);
}

inline void box(PlainRow &row, SoField &field)
{
    const SbBox3s &value = static_cast<const SoSFBox3s &>(field).getValue();
    for (std::size_t i = 0; i < 6; ++i) {
        const SbVec3s &corner = i < 3 ? value.getMin() : value.getMax();
        showText(row.edits[i], QString::number(corner[i % 3]));
    }
    line(row, field);
}

/// Three components.
inline void picture(PlainRow &row, SoField &field)
{
    SbVec2s size;
    int components = 0;
    const unsigned char *const pixels = static_cast<const SoSFImage &>(field).getValue(size, components);
    const QImage image(pixels, size[0], size[1], size[0] * components, QImage::Format_RGB888);
    const QPixmap pixmap = QPixmap::fromImage(image.mirrored());
    row.picture->setPixmap(pixmap);
    row.enlarged->setFixedSize(pixmap.size().boundedTo(QSize(256, 256)));
    row.enlarged->setPixmap(pixmap);
}

/// The check boxes of a mask stay as they were built, as the editor's do.
inline void nothing(PlainRow &, SoField &) { }
} // namespace PlainDisplay

#endif
