// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PlainAreas.h"

#include "resources/edit.xpm"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleValidator>
#include <QFrame>
#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include <Inventor/fields/SoSFEnum.h>

#include <functional>
#include <limits>

using PlainAreas::Number;
using Short = std::numeric_limits<qint16>;

namespace
{
QValidator *newValidator(Number number, QLineEdit *edit)
{
    constexpr double largest = std::numeric_limits<float>::max();
    switch (number) {
    case Number::Short:
        return new QIntValidator(Short::min(), Short::max(), edit);
    case Number::Integer:
        return new QIntValidator(edit);
    case Number::Real:
        return new QDoubleValidator(-largest, largest, 6, edit);
    default:
        return nullptr;
    }
}

void setValidator(QLineEdit *edit, Number number)
{
    QValidator *const validator = newValidator(number, edit);
    if (!validator)
        return;
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(locale);
    edit->setValidator(validator);
}

/// A label and its control, above each other or side by side.
template <class Control>
Control *addComponent(PlainRow &row, QBoxLayout *component, const QString &name, int labelHeight, int height)
{
    auto *const label
        = new QLabel(row.finish == PlainRow::Bare ? name : QStringLiteral("<p>%1</p>").arg(name), row.area);
    label->setFixedHeight(labelHeight);
    auto *const control = new Control(row.area);
    control->setFixedHeight(height);
    if (row.finish != PlainRow::Bare) {
        label->setObjectName(QStringLiteral("componentLabel"));
        component->setObjectName(QStringLiteral("component"));
        row.setNames(control, "component", name);
    }
    component->setContentsMargins(0, 0, 0, 0);
    component->setSpacing(4);
    component->addWidget(label);
    component->addWidget(control);
    component->setSizeConstraint(QLayout::SetMinimumSize);
    row.layout->addLayout(component);
    return control;
}

void forEachName(const SoField *field, const std::function<void(const QString &, int)> &use)
{
    const auto &enumeration = *static_cast<const SoSFEnum *>(field);
    for (int i = 0; i < enumeration.getNumEnums(); ++i) {
        SbName name;
        const int value = enumeration.getEnum(i, name);
        use(QString::fromLatin1(name.getString()), value);
    }
}
} // namespace

void PlainAreas::addNumber(PlainRow &row, Number number)
{
    auto *const live = new QCheckBox(row.area);
    live->setChecked(true);
    live->setToolTip(QStringLiteral("Change the field while the slider is dragged"));
    row.slider = new QSlider(Qt::Horizontal, row.area);
    row.slider->setFocusPolicy(Qt::StrongFocus);
    row.slider->setRange(0, 100);
    auto *const edit = new QLineEdit(row.area);
    setValidator(edit, number);
    row.setNames(live, "live", live->toolTip());
    row.setNames(row.slider, "slider", QStringLiteral("Value slider"));
    row.setNames(edit, "edit", QStringLiteral("Value"));
    for (QWidget *const control :
         {static_cast<QWidget *>(live), static_cast<QWidget *>(row.slider), static_cast<QWidget *>(edit)})
        row.layout->addWidget(control);
    row.edits.push_back(edit);
}

void PlainAreas::addComponents(PlainRow &row, int count, const char *const *names)
{
    for (int i = 0; i < count; ++i) {
        auto *const edit = addComponent<QLineEdit>(row, new QVBoxLayout, QLatin1String(names[i]), 14, 16);
        setValidator(edit, Number::Real);
        row.edits.push_back(edit);
    }
}

void PlainAreas::plane(PlainRow &row, const SoField *)
{
    constexpr const char *names[] = {"x", "y", "z", "v"};
    addComponents(row, 4, names);
}

void PlainAreas::rotation(PlainRow &row, const SoField *)
{
    constexpr const char *names[] = {"x", "y", "z", "radians"};
    addComponents(row, 4, names);
}

void PlainAreas::checkBox(PlainRow &row, const SoField *)
{
    row.layout->setContentsMargins(0, 0, 0, 0);
    auto *const box = new QCheckBox(row.area);
    box->setFixedSize(16, 18);
    if (row.finish != PlainRow::Bare)
        box->setObjectName(QStringLiteral("box"));
    row.layout->addWidget(box);
    row.boxes.push_back(box);
}

void PlainAreas::choice(PlainRow &row, const SoField *field)
{
    row.combo = new QComboBox(row.area);
    row.combo->setFocusPolicy(Qt::StrongFocus);
    row.setNames(row.combo, "choice", row.text);
    row.layout->addWidget(row.combo, 1);
    forEachName(field, [&](const QString &name, int) { row.combo->addItem(name); });
}

void PlainAreas::bits(PlainRow &row, const SoField *field)
{
    auto *const column = new QVBoxLayout;
    const int value = static_cast<const SoSFEnum *>(field)->getValue();
    forEachName(field, [&](const QString &name, int bit) {
        auto *const box = new QCheckBox(name, row.area);
        if (row.finish != PlainRow::Bare)
            box->setObjectName(name);
        box->setChecked(value & bit);
        column->addWidget(box);
        row.boxes.push_back(box);
    });
    row.layout->addLayout(column);
}

void PlainAreas::line(PlainRow &row, const SoField *)
{
    row.line = new QLineEdit(row.area);
    row.line->setMaxLength(std::numeric_limits<int>::max());
    row.setNames(row.line, "line", row.text);
    row.layout->addWidget(row.line, 1);
}

void PlainAreas::addSpins(PlainRow &row, int minimum, int maximum)
{
    for (const char *const name : {"x", "y"}) {
        auto *const spin = addComponent<QSpinBox>(row, new QVBoxLayout, QLatin1String(name), 14, 16);
        spin->setFocusPolicy(Qt::StrongFocus);
        spin->setRange(minimum, maximum);
        row.spins.push_back(spin);
    }
}

void PlainAreas::colour(PlainRow &row, const SoField *)
{
    row.swatch = new QPushButton(row.area);
    row.swatch->setFixedSize(20, 18);
    row.swatch->setIconSize(row.swatch->minimumSize());
    row.swatch->setAutoDefault(false);
    row.swatch->setToolTip(QStringLiteral("Choose a colour"));
    row.setNames(row.swatch, "swatch", row.swatch->toolTip());
    QPixmap black(row.swatch->iconSize());
    black.fill(Qt::black);
    row.swatch->setIcon(black);
    row.layout->addWidget(row.swatch);
    for (const char *const name : {"R", "G", "B"}) {
        auto *const edit = addComponent<QLineEdit>(row, new QHBoxLayout, QLatin1String(name), 18, 18);
        edit->setText(QStringLiteral("0"));
        row.edits.push_back(edit);
    }
}

void PlainAreas::addPopup(PlainRow &row, int rows, int columns, Number number)
{
    static const QPixmap icon(edit_xpm);
    line(row, nullptr);
    row.line->setEnabled(false);
    row.buttons->insertWidget(0, row.newButton(icon, "edit", QStringLiteral("Edit the components")));
    if (row.finish == PlainRow::WithoutPopup)
        return;

    auto *const popup = new QFrame(row.frame, Qt::Popup);
    popup->resize(260, 100);
    popup->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    row.setNames(popup, "popup", row.text);
    auto *const grid = new QGridLayout(popup);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->setSpacing(8);
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < columns; ++j) {
            auto *const edit = new QLineEdit(popup);
            if (row.finish != PlainRow::Bare) {
                edit->setObjectName(QStringLiteral("edit_%1_%2").arg(i).arg(j));
                edit->setAccessibleName(QStringLiteral("Row %1, column %2").arg(i + 1).arg(j + 1));
            }
            setValidator(edit, number);
            grid->addWidget(edit, i, j);
            row.edits.push_back(edit);
        }
    }
}

void PlainAreas::picture(PlainRow &row, const SoField *)
{
    row.picture = new QLabel(row.area);
    row.picture->setScaledContents(true);
    row.picture->setMouseTracking(true);
    row.picture->setFixedSize(16, 16);
    row.setNames(row.picture, "picture", QStringLiteral("Image"));
    row.layout->addWidget(row.picture);
    if (row.finish == PlainRow::WithoutPopup)
        return;
    row.enlarged = new QLabel(row.picture, Qt::Popup);
    row.enlarged->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    row.enlarged->setScaledContents(true);
    if (row.finish != PlainRow::Bare)
        row.enlarged->setObjectName(QStringLiteral("enlarged"));
}

void PlainAreas::threeEdits(PlainRow &row, const SoField *)
{
    for (int i = 0; i < 3; ++i)
        row.layout->addWidget(new QLineEdit(QStringLiteral("0"), row.area));
}
