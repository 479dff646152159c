// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PlainRow.h"

#include "resources/ignorefield.xpm"
#include "resources/settodefault.xpm"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace
{
QHBoxLayout *newLayout(int margin, int spacing, const char *name, PlainRow::Finish finish)
{
    auto *const layout = new QHBoxLayout;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    if (finish != PlainRow::Bare)
        layout->setObjectName(QLatin1String(name));
    return layout;
}

void setFlatFrame(QFrame *frame)
{
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setLineWidth(0);
}

QSpacerItem *newSpacer(QSizePolicy::Policy stretch)
{
    return new QSpacerItem(0, 0, stretch, QSizePolicy::Minimum);
}
} // namespace

PlainRow::PlainRow(const QString &labelText, const Area &content, const SoField *field, Finish wantedFinish,
                   QWidget *parent)
    : finish(wantedFinish), text(labelText), frame(new QFrame(parent)), area(new QFrame(frame)),
      layout(newLayout(2, 4, "edit", finish)), buttons(newLayout(2, 0, "buttons", finish))
{
    static const QPixmap defaultIcon(settodefault_xpm);
    static const QPixmap ignoreIcon(ignorefield_xpm);

    area->setLayout(layout);
    auto *const setDefault = newButton(defaultIcon, "default", QStringLiteral("Set to default"));
    ignore = newButton(ignoreIcon, "ignore", QStringLiteral("Ignore this field"));
    ignore->setCheckable(true);
    for (QPushButton *const button : {setDefault, ignore}) {
        button->setFocusPolicy(Qt::NoFocus);
        buttons->addWidget(button);
    }
    if (finish != Bare) {
        frame->setObjectName(QStringLiteral("row"));
        area->setObjectName(QStringLiteral("area"));
        setFlatFrame(frame);
        setFlatFrame(area);
    }
    content.fill(*this, field);

    auto *const right = newLayout(0, 2, "right", finish);
    right->addWidget(area);
    right->addItem(newSpacer(content.stretch));
    right->addLayout(buttons);
    right->setSizeConstraint(QLayout::SetMinimumSize);

    auto *const row = newLayout(4, 6, "row", finish);
    row->addWidget(newLabel());
    row->addItem(newSpacer(content.stretch));
    row->addLayout(right);
    frame->setLayout(row);
}

QLabel *PlainRow::newLabel() const
{
    auto *const label = new QLabel(text, frame);
    QFont font = label->font();
    font.setPointSize(10);
    label->setFont(font);
    if (finish != Bare) {
        label->setObjectName(QStringLiteral("label"));
        setFlatFrame(label);
    }
    return label;
}

void PlainRow::setNames(QWidget *control, const char *objectName, const QString &accessibleName) const
{
    if (finish == Bare)
        return;
    control->setObjectName(QLatin1String(objectName));
    control->setAccessibleName(accessibleName);
}

QPushButton *PlainRow::newButton(const QPixmap &icon, const char *objectName, const QString &toolTip) const
{
    auto *const button = new QPushButton(icon, QString(), frame);
    button->setMaximumSize(20, 20);
    button->setAutoDefault(false);
    button->setToolTip(toolTip);
    setNames(button, objectName, toolTip);
    return button;
}
