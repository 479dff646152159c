// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowShape.h"

#include "PanelMetrics.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QSpinBox>

namespace
{
bool isNamed(const QObject &object, const char *name)
{
    return object.objectName() == QLatin1String(name);
}

bool isSwatch(const QWidget &widget)
{
    return isNamed(widget, "m_colorDisp");
}

/// A name and its control.
QBoxLayout *componentAt(const QBoxLayout &edits, int index)
{
    auto *const component = qobject_cast<QBoxLayout *>(edits.itemAt(index)->layout());
    const bool isComponent
        = component && component->count() == 2 && qobject_cast<QLabel *>(component->itemAt(0)->widget());
    return isComponent ? component : nullptr;
}

/// Calls @p visit for each layout in @p layout, itself included, those of frames too.
template <class Visit> void forEachLayout(QLayout &layout, const Visit &visit)
{
    visit(layout);
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *const item = layout.itemAt(i);
        QLayout *const inner = item->widget() ? item->widget()->layout() : item->layout();
        if (inner)
            forEachLayout(*inner, visit);
    }
}

bool holdsButtons(const QLayout &layout)
{
    return layout.count() > 0 && qobject_cast<QPushButton *>(layout.itemAt(layout.count() - 1)->widget());
}

/// A row may be higher than its first line.
void alignButtons(QLayout &layout)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayout *const inner = layout.itemAt(i)->layout();
        if (!inner)
            continue;
        if (holdsButtons(*inner))
            layout.setAlignment(inner, Qt::AlignTop);
        alignButtons(*inner);
    }
}

/// Plain text is what the labels hold but for tags that set them apart.
void simplify(QLabel &name)
{
    static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
    name.setTextFormat(Qt::PlainText);
    name.setText(name.text().remove(tags));
    name.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

/// What has one size stands at the start of its row.
void alignFixed(QBoxLayout &edits, QWidget *control)
{
    const bool isFixed
        = control && (isSwatch(*control) || isNamed(*control, "m_imageBox") || qobject_cast<QCheckBox *>(control));
    if (isFixed)
        edits.setAlignment(control, Qt::AlignTop | Qt::AlignLeft);
}

/// In its size; what marks the label stays.
void useDesktopFont(QLabel &label)
{
    QFont font;
    if (label.font().strikeOut())
        font.setStrikeOut(true);
    if (label.font().bold())
        font.setBold(true);
    label.setFont(font);
}

void setFixedHeight(QWidget &control, int height)
{
    control.setMinimumHeight(height);
    control.setMaximumHeight(height);
}
} // namespace

RowShape::RowShape(QWidget &editor) : m_editor(&editor), m_label(editor.findChild<QLabel *>(QStringLiteral("m_label")))
{
    if (m_label)
        useDesktopFont(*m_label);
    if (auto *const line = qobject_cast<QBoxLayout *>(editor.layout()))
        shapeLine(*line);
    else if (auto *const grid = qobject_cast<QGridLayout *>(editor.layout()))
        shapeTable(*grid);
    collect(editor);
    for (QPushButton *const button : std::as_const(m_buttons)) {
        if (isNamed(*button, "m_defaultButton") || isNamed(*button, "m_ignoreButton"))
            button->setFocusPolicy(Qt::StrongFocus); // keys stay in the row
    }
    setActive(false);
}

/// Label, spacer, edition area and, in it or behind it, a spacer and the buttons.
void RowShape::shapeLine(QBoxLayout &line)
{
    line.setAlignment(m_label, Qt::AlignTop);
    if (QSpacerItem *const spacer = line.itemAt(1)->spacerItem())
        spacer->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Minimum);
    alignButtons(line);
    auto *const frame = m_editor->findChild<QFrame *>(QStringLiteral("m_editionFrame"));
    auto *const edits = frame ? qobject_cast<QBoxLayout *>(frame->layout()) : nullptr;
    if (edits)
        shapeComponents(*edits);
    if (auto *const slider = m_editor->findChild<QSlider *>()) {
        auto *const layout = static_cast<QBoxLayout *>(slider->parentWidget()->layout());
        layout->setStretch(layout->indexOf(slider), 1);
        layout->setStretch(layout->count() - 1, 3); // the edit, as far as its numbers need
    }
}

void RowShape::shapeTable(QGridLayout &grid)
{
    grid.setAlignment(m_label, Qt::AlignTop);
}

void RowShape::shapeComponents(QBoxLayout &edits)
{
    for (int i = edits.count() - 1; i >= 0; --i) {
        QBoxLayout *const component = componentAt(edits, i);
        if (!component) {
            alignFixed(edits, edits.itemAt(i)->widget());
            continue;
        }
        edits.takeAt(i);
        component->setDirection(QBoxLayout::LeftToRight);
        component->setStretch(1, 1); // its control
        auto &name = static_cast<QLabel &>(*component->itemAt(0)->widget());
        simplify(name);
        if (name.text().size() > 1)
            putBehind(*component, name);
        m_components.insert(m_components.begin(), component);
    }
    if (m_components.empty())
        return;
    m_grid = new QGridLayout;
    edits.addLayout(m_grid, 1);
    m_perLine = static_cast<int>(m_components.size());
    placeComponents();
}

/// A unit stands behind its number, and the number below the others.
void RowShape::putBehind(QBoxLayout &component, QLabel &unit)
{
    m_unit = &unit;
    m_unitIndent = new QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Minimum);
    component.insertItem(0, m_unitIndent);
    component.removeWidget(&unit);
    component.addWidget(&unit);
}

void RowShape::placeComponents()
{
    for (int i = 0; i < static_cast<int>(m_components.size()); ++i) {
        QBoxLayout *const component = m_components[static_cast<std::size_t>(i)];
        m_grid->removeItem(component);
        component->setParent(nullptr);
        m_grid->addLayout(component, i / m_perLine, i % m_perLine);
        m_grid->setColumnStretch(i, i < m_perLine ? 1 : 0);
    }
}

void RowShape::collect(const QWidget &widget)
{
    forEachLayout(*widget.layout(), [this](const QLayout &layout) {
        for (int i = 0; i < layout.count(); ++i) {
            QWidget *const control = layout.itemAt(i)->widget();
            if (!control || control->layout())
                continue;
            m_controls.append(control);
            if (auto *const button = qobject_cast<QPushButton *>(control); button && !isSwatch(*button))
                m_buttons.append(button);
        }
    });
}

void RowShape::apply(const PanelMetrics &metrics)
{
    for (QWidget *const control : std::as_const(m_controls))
        sizeControl(*control, metrics);
    sizeLayouts(metrics);
    m_part = metrics.letter + metrics.gap + metrics.shortNumber;
    if (m_unit) {
        m_part += metrics.gap + m_unit->sizeHint().width();
        m_unitIndent->changeSize(metrics.letter + metrics.gap, 0, QSizePolicy::Fixed, QSizePolicy::Minimum);
    }
    m_space = metrics.space;
    m_beside = 4 * metrics.space + static_cast<int>(m_buttons.size()) * metrics.height;
    if (const auto *const swatch = m_editor->findChild<QPushButton *>(QStringLiteral("m_colorDisp")))
        m_beside += swatch->width() + metrics.space;
}

void RowShape::sizeControl(QWidget &control, const PanelMetrics &metrics) const
{
    if (qobject_cast<QPushButton *>(&control)) {
        auto &button = static_cast<QPushButton &>(control);
        button.setFixedSize(isSwatch(control) ? metrics.height * 3 / 2 : metrics.height, metrics.height);
        button.setIconSize({metrics.icon, metrics.icon});
    } else if (const auto *const box = qobject_cast<QCheckBox *>(&control)) {
        setFixedHeight(control, metrics.height);
        if (box->text().isEmpty())
            control.setFixedWidth(metrics.checkBox);
    } else if (qobject_cast<QLabel *>(&control)) {
        setFixedHeight(control, metrics.height);
        if (isNamed(control, "m_imageBox"))
            control.setFixedWidth(metrics.height);
        else if (&control != m_label)
            control.setMinimumWidth(metrics.letter);
    } else if (auto *const choice = qobject_cast<QComboBox *>(&control)) {
        setFixedHeight(control, metrics.height);
        choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        choice->setMinimumContentsLength(1);
        choice->setMinimumWidth(metrics.leastEdit + metrics.height); // it would insist on its longest entry
    } else if (qobject_cast<QLineEdit *>(&control) || qobject_cast<QSpinBox *>(&control)) {
        setFixedHeight(control, metrics.height);
        control.setMinimumWidth(metrics.leastEdit);
        const bool isOne = isNamed(control, "edit") || isNamed(control, "m_accessBox");
        control.setMaximumWidth(isOne ? metrics.longNumber : QWIDGETSIZE_MAX);
    }
}

void RowShape::sizeLayouts(const PanelMetrics &metrics)
{
    forEachLayout(*m_editor->layout(), [&](QLayout &layout) {
        const bool isOuter = &layout == m_editor->layout();
        const int side = isOuter ? metrics.space : 0;
        const int gap = isOuter ? metrics.gap : 0;
        layout.setContentsMargins(side, gap, side, gap);
        const bool isTight = (m_grid && layout.parent() == m_grid) || isNamed(layout, "nodescopeslider");
        if (auto *const grid = qobject_cast<QGridLayout *>(&layout)) {
            grid->setHorizontalSpacing(metrics.space);
            grid->setVerticalSpacing(metrics.gap);
        } else if (isNamed(layout, "SFBitMaskLayout")) {
            layout.setSpacing(0);
        } else {
            layout.setSpacing(isTight || holdsButtons(layout) ? metrics.gap : metrics.space);
        }
    });
}

void RowShape::setLabelWidth(int width)
{
    m_labelWidth = width;
    if (m_label)
        m_label->setFixedWidth(width);
}

void RowShape::fold(int width)
{
    if (!m_grid)
        return;
    const int room = width - m_labelWidth - m_beside;
    int perLine = static_cast<int>(m_components.size());
    while (perLine > 1 && (room - (perLine - 1) * m_space) / perLine < m_part)
        perLine = perLine == 4 ? 2 : 1;
    if (m_unit)
        m_unit->setVisible(room >= m_part);
    if (perLine == m_perLine)
        return;
    m_perLine = perLine;
    placeComponents();
    // now, from the inside to the outside: the rows below would move in several steps
    for (QWidget *frame = m_grid->parentWidget(); frame != m_editor->parentWidget(); frame = frame->parentWidget())
        frame->layout()->activate();
}

void RowShape::setActive(bool active)
{
    for (QPushButton *const button : std::as_const(m_buttons))
        button->setFlat(!active);
}
