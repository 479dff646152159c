// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFieldWidget.h>

#include "EditorButton.h"
#include "FieldEditorSettings.h"
#include "support/FieldDefaults.h"
#include "support/FieldWatch.h"
#include "support/Icons.h"
#include "support/TranslatedTexts.h"

#include <HbFieldEditorCommandManager.h>
#include <HbIntSlider.h>
#include <HbRealSlider.h>
#include <HbUIntSlider.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <Inventor/fields/SoField.h>

#include <limits>

namespace
{
QHBoxLayout *newLayout(const QString &marginKey, const QString &spacingKey, const QString &name)
{
    auto *const layout = new QHBoxLayout;
    const int margin = nscsettings_fieldEditor(marginKey);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(nscsettings_fieldEditor(spacingKey));
    layout->setObjectName(name);
    return layout;
}

QSpacerItem *addSpacer(QHBoxLayout *layout)
{
    auto *const spacer = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    layout->addItem(spacer);
    return spacer;
}
} // namespace

HbSFieldWidget::HbSFieldWidget(const char *label, SFFrameType frameType, HbFieldEditorCommandManager *manager,
                               QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbFieldEditors(parent, flags), m_commandManager(manager), m_field(std::make_unique<FieldWatch>()),
      m_defaultIcon(Icons::setToDefault()), m_ignoreIcon(Icons::ignoreField())
{
    setObjectName(name ? QString::fromUtf8(name) : QStringLiteral("HbSFieldWidget"));
    buildSlider(frameType);
    buildLayout();
    (new TranslatedTexts(this))->call([this] { languageChange(); });
    connectButtons();
    if (label)
        m_label->setText(QString::fromUtf8(label));
}

HbSFieldWidget::HbSFieldWidget(SFFrameType frameType, HbFieldEditorCommandManager *manager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(nullptr, frameType, manager, parent, name, flags)
{
}

HbSFieldWidget::HbSFieldWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                               Qt::WindowFlags flags)
    : HbSFieldWidget(nullptr, PlainFrame, manager, parent, name, flags)
{
}

HbSFieldWidget::HbSFieldWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, PlainFrame, manager, parent, name, flags)
{
}

HbSFieldWidget::~HbSFieldWidget()
{
    // a control that has the focus would report to an owner that is half gone
    const auto children = findChildren<QObject *>();
    for (QObject *const child : children)
        child->disconnect(this);
    delete m_editionFrame; // where it is a slider it reports by itself
}

void HbSFieldWidget::buildSlider(SFFrameType frameType)
{
    constexpr int row = 0;
    constexpr int col = 1;
    const auto integer = [&](HbSlider::SliderType type) {
        return new HbIntSlider(type, HbSlider::SingleField, this, m_commandManager, this, row, col);
    };
    const auto unsignedInteger = [&](HbSlider::SliderType type) {
        return new HbUIntSlider(type, HbSlider::SingleField, this, m_commandManager, this, row, col);
    };
    switch (frameType) {
    case RealSliderFrame:
        m_editionFrame = new HbRealSlider(HbSlider::SingleField, this, m_commandManager, this, row, col);
        break;
    case Int32SliderFrame:
        m_editionFrame = integer(HbSlider::Int32);
        break;
    case UInt32SliderFrame:
        m_editionFrame = unsignedInteger(HbSlider::UInt32);
        break;
    case Int16SliderFrame:
        m_editionFrame = integer(HbSlider::Int16);
        break;
    case UInt16SliderFrame:
        m_editionFrame = unsignedInteger(HbSlider::UInt16);
        break;
    default:
        break; // buildEditionFrame() makes the plain one
    }
}

void HbSFieldWidget::buildEditionFrame()
{
    if (m_editionFrame) {
        m_editLayout = static_cast<QHBoxLayout *>(m_editionFrame->layout());
        return;
    }
    m_editionFrame = new QFrame(this);
    m_editionFrame->setObjectName(QStringLiteral("m_editionFrame"));
    m_editionFrame->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_editionFrame->setLineWidth(nscsettings_fieldEditor(QStringLiteral("frameLineWidth")));
    m_editLayout = newLayout(QStringLiteral("SFieldEditLayoutMargin"), QStringLiteral("SFieldEditLayoutSpacing"),
                             QStringLiteral("editLayout"));
    m_editionFrame->setLayout(m_editLayout);
}

void HbSFieldWidget::buildLayout()
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(nscsettings_fieldEditor(QStringLiteral("frameLineWidth")));

    m_fieldLayout = newLayout(QStringLiteral("SFieldLayoutMargin"), QStringLiteral("SFieldLayoutSpacing"),
                              QStringLiteral("SFieldLayout"));
    setLayout(m_fieldLayout);

    m_label = new QLabel(this);
    m_label->setObjectName(QStringLiteral("m_label"));
    QFont font = m_label->font();
    font.setPointSize(nscsettings_fieldEditor(QStringLiteral("labelPointSize")));
    m_label->setFont(font);
    m_label->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_label->setLineWidth(nscsettings_fieldEditor(QStringLiteral("labelLineWidth")));
    m_label->setScaledContents(true);
    m_fieldLayout->addWidget(m_label);
    m_labelSpacer = addSpacer(m_fieldLayout);

    m_editionAreaLayout = newLayout(QStringLiteral("SFEditionAreaLayMargin"), QStringLiteral("SFEditionAreaLaySpacing"),
                                    QStringLiteral("SFieldEditionAreaLayout"));
    buildEditionFrame();
    m_editionAreaLayout->addWidget(m_editionFrame);
    m_buttonSpacer = addSpacer(m_editionAreaLayout);

    // named like the outer layout, deliberately
    m_buttonLayout = newLayout(QStringLiteral("SFButtonLayoutMargin"), QStringLiteral("SFButtonLayoutSpacing"),
                               QStringLiteral("SFieldLayout"));
    m_defaultButton = newEditorButton(this, QStringLiteral("m_defaultButton"), m_defaultIcon);
    m_buttonLayout->addWidget(m_defaultButton);
    m_ignoreButton = newEditorButton(this, QStringLiteral("m_ignoreButton"), m_ignoreIcon);
    m_ignoreButton->setCheckable(true);
    for (QPushButton *const button : {m_defaultButton, m_ignoreButton})
        button->setFocusPolicy(Qt::NoFocus);
    m_buttonLayout->addWidget(m_ignoreButton);

    m_editionAreaLayout->addLayout(m_buttonLayout);
    m_editionAreaLayout->setSizeConstraint(QLayout::SetMinimumSize);
    m_fieldLayout->addLayout(m_editionAreaLayout);
}

void HbSFieldWidget::connectButtons()
{
    if (m_commandManager)
        connect(m_defaultButton, &QPushButton::clicked, this, [this] {
            if (m_commandManager && !hasLostField())
                m_commandManager->fieldSetDefaultValue();
        });
    else
        // There is no such slot, deliberately: the button does nothing then, and Qt says so.
        connect(m_defaultButton, SIGNAL(clicked()), this, SLOT(setDefaultValue()));
    connect(m_ignoreButton, &QPushButton::released, this, &HbSFieldWidget::ignoreButtonStateChanged);
}

void HbSFieldWidget::languageChange()
{
    m_defaultButton->setText(QString());
    m_ignoreButton->setText(QString());
    m_defaultButton->setToolTip(QStringLiteral("Set to default"));
    m_ignoreButton->setToolTip(QStringLiteral("Ignore this field"));
    m_defaultButton->setAccessibleName(m_defaultButton->toolTip());
    m_ignoreButton->setAccessibleName(m_ignoreButton->toolTip());
}

void HbSFieldWidget::commitOnReturn(QLineEdit *edit)
{
    connect(edit, &QLineEdit::editingFinished, this, &HbSFieldWidget::setFocusLeaveEvent);
    connect(edit, &QLineEdit::returnPressed, this, &HbSFieldWidget::setCommandValue);
}

void HbSFieldWidget::commitOnChange(QLineEdit *edit)
{
    connect(edit, &QLineEdit::editingFinished, this, &HbSFieldWidget::setFocusLeaveEvent);
    connect(edit, &QLineEdit::textChanged, this, &HbSFieldWidget::setCommandValue);
}

QLineEdit *HbSFieldWidget::addLineEdit()
{
    auto *const edit = new QLineEdit(m_editionFrame);
    edit->setObjectName(QStringLiteral("lineEdit"));
    edit->setAlignment(Qt::AlignLeft);
    edit->setMaxLength(std::numeric_limits<int>::max()); // QLineEdit itself would cut at 32767
    edit->setAccessibleName(m_label->text());
    m_editLayout->addWidget(edit, 1);
    return edit;
}

void HbSFieldWidget::centreEditionFrame()
{
    for (QSpacerItem *const spacer : {m_labelSpacer, m_buttonSpacer})
        spacer->changeSize(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum);
    // only in one layout do two stretches become equally wide
    m_editionAreaLayout->removeItem(m_buttonSpacer);
    m_editionAreaLayout->removeItem(m_buttonLayout);
    m_fieldLayout->addItem(m_buttonSpacer);
    m_fieldLayout->addLayout(m_buttonLayout);
}

void HbSFieldWidget::setEditLayout(const char *marginKey, const char *spacingKey)
{
    const int margin = nscsettings_fieldEditor(QLatin1String(marginKey));
    m_editLayout->setContentsMargins(margin, margin, margin, margin);
    m_editLayout->setSpacing(nscsettings_fieldEditor(QLatin1String(spacingKey)));
}

SoField *HbSFieldWidget::editedField() const
{
    return m_field->get();
}

bool HbSFieldWidget::setField(SoField *newField)
{
    m_field->set(newField);
    return true;
}

void HbSFieldWidget::refresh()
{
    if (const SoField *const edited = editedField())
        m_ignoreButton->setChecked(edited->isIgnored());
}

void HbSFieldWidget::setRefresh(bool) { }

void HbSFieldWidget::swapRows(int, int) { }

void HbSFieldWidget::swapColumns(int, int) { }

void HbSFieldWidget::set1Value(int, int, QString) { }

void HbSFieldWidget::setValue(int, const void *) { }

void HbSFieldWidget::applyChanges() { }

bool HbSFieldWidget::edited()
{
    return false;
}

void HbSFieldWidget::commit()
{
    if (m_isCommitting || hasLostField())
        return;
    const QPointer<HbSFieldWidget> self(this); // the host may delete it in answer
    m_isCommitting = true;
    if (m_commandManager)
        m_commandManager->sfieldSetValue(nullptr);
    else
        applyChanges();
    if (self)
        m_isCommitting = false;
}

void HbSFieldWidget::setCommandValue()
{
    commit();
}

void HbSFieldWidget::setFocusLeaveEvent()
{
    if (edited())
        setCommandValue();
}

void HbSFieldWidget::ignoreButtonStateChanged()
{
    const bool ignored = m_ignoreButton->isChecked();
    if (hasLostField())
        return;
    if (m_commandManager)
        m_commandManager->fieldSetIgnored(ignored);
    else if (SoField *const edited = editedField())
        edited->setIgnored(ignored);
}

void HbSFieldWidget::setDefaultFieldValue()
{
    if (SoField *const edited = editedField())
        setToDefault(*edited);
}
