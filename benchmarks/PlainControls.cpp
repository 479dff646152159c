// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PlainControls.h"

#include "resources/ignorefield.xpm"
#include "resources/settodefault.xpm"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QValidator>

namespace
{
QHBoxLayout *newRow(int margin, int spacing)
{
    auto *const layout = new QHBoxLayout;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    return layout;
}

void setFlatFrame(QFrame *frame)
{
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setLineWidth(0);
}

QPushButton *newButton(const QPixmap &icon, const QString &toolTip, PlainControls::Finish finish, QWidget *parent)
{
    auto *const button = new QPushButton(icon, QString(), parent);
    button->setMaximumSize(20, 20);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(toolTip);
    if (finish == PlainControls::Complete)
        button->setAccessibleName(toolTip);
    return button;
}

/// A frame with a label at its left, two buttons at its right and @p area between them.
QWidget *framed(const QString &text, QFrame *frame, QWidget *area, QSizePolicy::Policy stretch,
                PlainControls::Finish finish)
{
    static const QPixmap defaultIcon(settodefault_xpm);
    static const QPixmap ignoreIcon(ignorefield_xpm);

    auto *const label = new QLabel(text, frame);
    QFont font = label->font();
    font.setPointSize(10);
    label->setFont(font);
    if (finish == PlainControls::Complete)
        setFlatFrame(label);

    auto *const buttons = newRow(2, 0);
    buttons->addWidget(newButton(defaultIcon, QStringLiteral("Set to default"), finish, frame));
    auto *const ignore = newButton(ignoreIcon, QStringLiteral("Ignore this field"), finish, frame);
    ignore->setCheckable(true);
    buttons->addWidget(ignore);

    auto *const right = newRow(0, 2);
    right->addWidget(area);
    right->addItem(new QSpacerItem(0, 0, stretch, QSizePolicy::Minimum));
    right->addLayout(buttons);
    right->setSizeConstraint(QLayout::SetMinimumSize);

    auto *const row = newRow(4, 6);
    row->addWidget(label);
    row->addItem(new QSpacerItem(0, 0, stretch, QSizePolicy::Minimum));
    row->addLayout(right);
    setFlatFrame(frame);
    frame->setLayout(row);
    return frame;
}
} // namespace

QWidget *PlainControls::numberRow(const QString &label, QValidator *validator, Finish finish, QWidget *parent)
{
    auto *const frame = new QFrame(parent);
    auto *const area = new QFrame(frame);
    auto *const layout = newRow(2, 4);
    auto *const live = new QCheckBox(area);
    live->setChecked(true);
    live->setToolTip(QStringLiteral("Change the field while the slider is dragged"));
    auto *const edit = new QLineEdit(area);
    if (validator) {
        validator->setParent(edit);
        edit->setValidator(validator);
    }
    auto *const slider = new QSlider(Qt::Horizontal, area);
    slider->setRange(0, 100);
    if (finish == Complete) {
        live->setAccessibleName(live->toolTip());
        slider->setAccessibleName(QStringLiteral("Value slider"));
        edit->setAccessibleName(QStringLiteral("Value"));
    }
    layout->addWidget(live);
    layout->addWidget(slider);
    layout->addWidget(edit);
    area->setLayout(layout);
    return framed(label, frame, area, QSizePolicy::Minimum, finish);
}

QWidget *PlainControls::boolRow(const QString &label, Finish finish, QWidget *parent)
{
    auto *const frame = new QFrame(parent);
    auto *const area = new QFrame(frame);
    auto *const layout = newRow(0, 0);
    auto *const box = new QCheckBox(area);
    box->setFixedSize(16, 18);
    layout->addWidget(box);
    if (finish == Complete)
        setFlatFrame(area);
    area->setLayout(layout);
    return framed(label, frame, area, QSizePolicy::Expanding, finish);
}

QWidget *PlainControls::vectorRow(const QString &label, QWidget *parent)
{
    auto *const frame = new QFrame(parent);
    auto *const area = new QFrame(frame);
    auto *const layout = newRow(2, 4);
    for (int i = 0; i < 3; ++i)
        layout->addWidget(new QLineEdit(QStringLiteral("0"), area));
    area->setLayout(layout);
    return framed(label, frame, area, QSizePolicy::Minimum, Bare);
}
