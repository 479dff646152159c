// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFColorWidget.h>

#include "Components.h"
#include "support/ColorChoice.h"
#include "support/FieldWatch.h"
#include "support/TranslatedTexts.h"

#include <QPushButton>

#include <Inventor/fields/SoSFColor.h>

#include <cmath>

namespace
{
constexpr double whole = 255.0;

/// What int cannot hold, NaN too, gives a channel that no colour has.
int channel(float component)
{
    const double level = component * whole;
    return std::abs(level) < 1e6 ? static_cast<int>(level) : -1;
}
} // namespace

HbSFColorWidget::HbSFColorWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFColorWidget", flags)
{
    initClass();
}

HbSFColorWidget::HbSFColorWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbSFColorWidget(nullptr, manager, parent, name, flags)
{
}

HbSFColorWidget::~HbSFColorWidget() = default;

void HbSFColorWidget::initClass()
{
    m_colorDisp = Components::newControl<QPushButton>(m_editionFrame, "m_colorDisp", "SFComponentHeight");
    m_colorDisp->setFixedWidth(nscsettings_fieldEditor(QStringLiteral("SFColorDispWidth")));
    m_colorDisp->setIconSize(m_colorDisp->minimumSize());
    m_colorDisp->setAutoDefault(false);
    auto *const translated = new TranslatedTexts(this);
    translated->explain(m_colorDisp, [] { return tr("Choose a colour"); });
    displayColor();
    setEditLayout("SFColorMargin", "SFColorSpacing");
    m_editLayout->addWidget(m_colorDisp);

    for (std::size_t i = 0; i < m_edits.size(); ++i)
        buildComponent(m_edits[i], m_labels[i]);
    translated->call([this] {
        const QString texts[]
            = {tr("<p align=\"right\">R</p>"), tr("<p align=\"right\">G</p>"), tr("<p align=\"right\">B</p>")};
        const QString names[] = {tr("Red"), tr("Green"), tr("Blue")};
        for (std::size_t i = 0; i < m_edits.size(); ++i)
            Components::setLabel(m_labels[i], m_edits[i], texts[i], names[i]);
    });
    connect(m_edits[0], &QLineEdit::textChanged, this, &HbSFColorWidget::changeRValue);
    connect(m_edits[1], &QLineEdit::textChanged, this, &HbSFColorWidget::changeGValue);
    connect(m_edits[2], &QLineEdit::textChanged, this, &HbSFColorWidget::changeBValue);
    connect(m_colorDisp, &QPushButton::clicked, this, &HbSFColorWidget::getColorEditor);
}

void HbSFColorWidget::buildComponent(QLineEdit *&edit, QLabel *&label)
{
    auto *const row = new QHBoxLayout;
    row->setSpacing(nscsettings_fieldEditor(QStringLiteral("SFColorInterSpacing")));
    row->setObjectName(QStringLiteral("SFColorLayout"));
    label = Components::newControl<QLabel>(m_editionFrame, "SFColorLabel", "SFComponentHeight");
    edit = Components::newControl<QLineEdit>(m_editionFrame, "SFColorLine", "SFComponentHeight");
    edit->setText(tr("0"));
    Components::add(row, label, edit, m_editLayout);
    commitOnReturn(edit);
}

/// Invalid where a component lies beyond 0 to 1.
QColor HbSFColorWidget::workingColor() const
{
    return QColor(channel(m_color[0]), channel(m_color[1]), channel(m_color[2]));
}

void HbSFColorWidget::displayColor()
{
    const QColor color = workingColor();
    if (!color.isValid())
        return;
    QPixmap pixmap(m_colorDisp->iconSize());
    pixmap.fill(color);
    m_colorDisp->setIcon(pixmap);
}

void HbSFColorWidget::changeRValue(const QString &str)
{
    m_color[0] = NumberText::toFloat(str);
    displayColor();
}

void HbSFColorWidget::changeGValue(const QString &str)
{
    m_color[1] = NumberText::toFloat(str);
    displayColor();
}

void HbSFColorWidget::changeBValue(const QString &str)
{
    m_color[2] = NumberText::toFloat(str);
    displayColor();
}

void HbSFColorWidget::getColorEditor()
{
    const QPointer<HbSFColorWidget> self(this);
    const QColor chosen = chooseColor(workingColor(), this);
    if (!self || !chosen.isValid())
        return;
    const auto component = [](int level) { return static_cast<float>(level) / static_cast<float>(whole); };
    m_color = {component(chosen.red()), component(chosen.green()), component(chosen.blue())};
    displayColor();
    Components::show(m_edits, std::array(m_color).data()); // each text that changes sets its component, to 6 digits
    setCommandValue();
}

void HbSFColorWidget::refresh()
{
    if (const auto *const color = fieldCast<SoSFColor>(editedField())) {
        const SbColor value = color->getValue(); // a copy: texts that commit would change it on the way
        std::copy_n(value.getValue(), m_color.size(), m_color.begin());
        Components::show(m_edits, value.getValue());
        displayColor();
    }
    HbSFieldWidget::refresh();
}

void HbSFColorWidget::applyChanges()
{
    if (auto *const color = fieldCast<SoSFColor>(editedField()))
        color->setValue(m_color.data());
}

bool HbSFColorWidget::edited()
{
    return Components::isEdited(m_edits);
}
