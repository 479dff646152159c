// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFieldWidget.h>

#include "Editors/EditorButton.h"
#include "Editors/FieldEditorSettings.h"
#include "support/FieldDefaults.h"
#include "support/FieldWatch.h"
#include "support/Icons.h"
#include "support/RowTextCache.h"
#include "support/TranslatedTexts.h"

#include <AccessButtonPrivate.h>
#include <HbFieldEditorCommandManager.h>
#include <HbMFColorTable.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <Inventor/fields/SoMField.h>

const int HbMFieldWidget::m_colorTableFlag = 1;

namespace
{
constexpr int plainTable = 0;

QHBoxLayout *newLayout(const char *name, const char *marginKey, const char *spacingKey)
{
    auto *const layout = new QHBoxLayout;
    const int margin = nscsettings_fieldEditor(QLatin1String(marginKey));
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(nscsettings_fieldEditor(QLatin1String(spacingKey)));
    layout->setObjectName(QLatin1String(name));
    return layout;
}

QHBoxLayout *newPair(const char *name, QPushButton *first, QPushButton *second)
{
    QHBoxLayout *const layout = newLayout(name, "MFButtonLayoutMargin", "MFButtonLayoutSpacing");
    layout->addWidget(first);
    layout->addWidget(second);
    return layout;
}

HbMFieldTable *newTable(int kind, HbFieldEditorCommandManager *manager, HbMFieldWidget *owner)
{
    constexpr char name[] = "m_table";
    if (kind == HbMFieldWidget::m_colorTableFlag)
        return new HbMFColorTable(manager, owner, name);
    return new HbMFieldTable(manager, owner, name);
}
} // namespace

HbMFieldWidget::HbMFieldWidget(const char *fieldType, int tableKind, HbFieldEditorCommandManager *commandManager,
                               QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbFieldEditors(parent, flags), m_label(new QLabel(this)), m_commandManager(commandManager),
      m_field(std::make_unique<FieldWatch>()), m_textCache(std::make_unique<RowTextCache>())
{
    setObjectName(name ? QString::fromUtf8(name) : QStringLiteral("HbMFieldWidget"));
    createButtons();
    m_table = newTable(tableKind, commandManager, this);
    initClass();
    (new TranslatedTexts(this))->call([this] { languageChange(); });
    if (fieldType)
        m_label->setText(QString::fromUtf8(fieldType));
}

HbMFieldWidget::HbMFieldWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                               Qt::WindowFlags flags)
    : HbMFieldWidget(nullptr, plainTable, commandManager, parent, name, flags)
{
}

HbMFieldWidget::HbMFieldWidget(int tableKind, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(nullptr, tableKind, commandManager, parent, name, flags)
{
}

HbMFieldWidget::HbMFieldWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, plainTable, commandManager, parent, name, flags)
{
}

HbMFieldWidget::~HbMFieldWidget()
{
    // a control that has the focus would report to an owner that is half gone
    const auto children = findChildren<QObject *>();
    for (QObject *const child : children)
        child->disconnect(this);
    delete m_table; // whose cell editors report by themselves
}

void HbMFieldWidget::createButtons()
{
    const auto button = [this](const char *name, const QPixmap &icon) {
        QPushButton *const created = newEditorButton(this, QLatin1String(name), icon);
        created->setFocusPolicy(Qt::NoFocus);
        return created;
    };
    m_addButton = button("m_addButton", Icons::addRow());
    m_deleteButton = button("m_deleteButton", Icons::deleteRow());
    m_accessBox = new AccessButtonPrivate(0, 0, 1, this, "m_accessBox");
    m_accessBox->setMaximumSize(nscsettings_fieldEditor(QStringLiteral("MFAccessWidth")),
                                nscsettings_fieldEditor(QStringLiteral("buttonHeight")));
    m_accessBox->setFocusPolicy(Qt::NoFocus);
    m_upButton = button("m_upButton", Icons::moveUp());
    m_downButton = button("m_downButton", Icons::moveDown());
    m_defaultButton = button("m_defaultButton", Icons::setToDefault());
    m_ignoreButton = button("m_ignoreButton", Icons::ignoreField());
    m_ignoreButton->setCheckable(true);
}

void HbMFieldWidget::initClass()
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(nscsettings_fieldEditor(QStringLiteral("frameLineWidth")));
    m_label->setObjectName(QStringLiteral("m_label"));
    QFont font = m_label->font();
    font.setPointSize(nscsettings_fieldEditor(QStringLiteral("labelPointSize")));
    m_label->setFont(font);
    m_label->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_label->setLineWidth(nscsettings_fieldEditor(QStringLiteral("labelLineWidth")));
    m_label->setScaledContents(true);
    layOut();
    connectAll();
}

void HbMFieldWidget::layOut()
{
    const auto spacer = [](const char *width, const char *height, QSizePolicy::Policy horizontal) {
        return new QSpacerItem(nscsettings_fieldEditor(QLatin1String(width)),
                               nscsettings_fieldEditor(QLatin1String(height)), horizontal, QSizePolicy::Minimum);
    };
    m_accessSpacer = spacer("MFManageAccessSpacerWidth", "MFManageAccessSpacerHeight", QSizePolicy::Expanding);
    m_moveSpacer = spacer("MFAccessMoveSpacerWidth", "MFAccessMoveSpacerHeight", QSizePolicy::Minimum);

    m_buttonsLayout = newLayout("m_buttonsLayout", "MFGlobalButtonsLayoutMargin", "MFGlobalButtonsLayoutSpacing");
    m_buttonsLayout->addLayout(newPair("m_manageButtonsLayout", m_addButton, m_deleteButton));
    m_buttonsLayout->addItem(m_accessSpacer);
    m_buttonsLayout->addWidget(m_accessBox);
    m_buttonsLayout->addItem(m_moveSpacer);
    m_buttonsLayout->addLayout(newPair("movementButtonLayout", m_upButton, m_downButton));
    // named like the one before, deliberately
    m_buttonsLayout->addLayout(newPair("movementButtonLayout", m_defaultButton, m_ignoreButton));

    auto *const grid = new QGridLayout(this);
    const int margin = nscsettings_fieldEditor(QStringLiteral("MFGlobalLayoutMarging")); // the key's own spelling
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(nscsettings_fieldEditor(QStringLiteral("MFGlobalLayoutSpacing")));
    grid->setObjectName(QStringLiteral("m_globalLayout"));
    grid->addWidget(m_label, 0, 0);
    grid->addItem(new QSpacerItem(0, 0), 1, 0);
    grid->addItem(new QSpacerItem(0, 0), 0, 1);
    grid->addLayout(m_buttonsLayout, 0, 2);
    m_table->setSizePolicy(m_table->sizePolicy());
    m_table->setMinimumHeight(nscsettings_fieldEditor(QStringLiteral("MFTableMinHeightUnix")));
    grid->addWidget(m_table, 2, 2);
}

void HbMFieldWidget::connectAll()
{
    connect(m_upButton, &QPushButton::clicked, m_table, &HbMFieldTable::swapUpRow);
    connect(m_downButton, &QPushButton::clicked, m_table, &HbMFieldTable::swapDownRow);
    connect(m_deleteButton, &QPushButton::clicked, m_table, &HbMFieldTable::deleteRow);
    connect(m_addButton, &QPushButton::clicked, m_table, &HbMFieldTable::addRow);
    // the box counts from 1 and the table from 0, deliberately: 3 scrolls to the fourth row
    connect(m_accessBox, QOverload<int>::of(&QSpinBox::valueChanged), m_table, &HbMFieldTable::showTableRow);
    connect(m_table, &QTableWidget::currentCellChanged, m_accessBox, &QSpinBox::setValue);
    connect(m_ignoreButton, &QPushButton::released, this, &HbMFieldWidget::ignoreButtonStateChanged);
    if (m_commandManager)
        connect(m_defaultButton, &QPushButton::clicked, this, [this] {
            if (m_commandManager && !hasLostField())
                m_commandManager->fieldSetDefaultValue();
        });
    else
        // There is no such slot, deliberately: the button does nothing then, and Qt says so.
        connect(m_defaultButton, SIGNAL(clicked()), this, SLOT(setDefaultValue()));
}

void HbMFieldWidget::languageChange()
{
    const auto explain = [](QPushButton *button, const char *text) {
        button->setText(QString());
        button->setToolTip(QLatin1String(text));
        button->setAccessibleName(button->toolTip());
    };
    explain(m_deleteButton, "Delete current row");
    explain(m_upButton, "Bring up current row");
    explain(m_downButton, "Bring down current row");
    explain(m_defaultButton, "Set to default");
    explain(m_ignoreButton, "Ignore this field");
    explain(m_addButton, "Add a row");
    m_accessBox->setToolTip(QStringLiteral("Quick access to rows"));
    m_accessBox->setAccessibleName(m_accessBox->toolTip());
}

SoMField *HbMFieldWidget::editedField() const
{
    return static_cast<SoMField *>(m_field->get());
}

RowTextCache &HbMFieldWidget::textCache() const
{
    return *m_textCache;
}

QSpinBox *HbMFieldWidget::accessBox() const
{
    return m_accessBox;
}

bool HbMFieldWidget::checkField(SoField *field)
{
    return field && field->isOfType(SoMField::getClassTypeId());
}

bool HbMFieldWidget::setField(SoField *newField)
{
    if (!checkField(newField))
        return false;
    if (newField != m_field->get() && !m_table->finishEditing()) // what was typed belongs to the field before
        return true;
    m_field->set(newField, [this] { m_table->setNumRows(0); });
    return true;
}

void HbMFieldWidget::refresh()
{
    const SoMField *const edited = editedField();
    if (!edited || !m_refreshEnabled)
        return;
    m_textCache->clear(); // of a field that changed in silence, too
    m_table->setNumRows(edited->getNum()); // which evaluates the field
    m_table->viewport()->update();
    m_ignoreButton->setChecked(edited->isIgnored());
}

void HbMFieldWidget::setRefresh(bool enabled)
{
    m_refreshEnabled = enabled;
}

void HbMFieldWidget::swapRows(int, int) { }

void HbMFieldWidget::swapColumns(int, int) { }

void HbMFieldWidget::set1Value(int, int, QString) { }

void HbMFieldWidget::setValue(int, const void *) { }

void HbMFieldWidget::applyChanges() { }

QString HbMFieldWidget::getFieldValue(int, int) const
{
    return {};
}

QString HbMFieldWidget::getCellText(int row, int col, int) const
{
    return getFieldValue(row, col);
}

int HbMFieldWidget::getTextFlags()
{
    return Qt::AlignCenter;
}

void HbMFieldWidget::ignoreButtonStateChanged()
{
    const bool ignored = m_ignoreButton->isChecked();
    if (hasLostField())
        return;
    if (m_commandManager)
        m_commandManager->fieldSetIgnored(ignored);
    else if (SoMField *const edited = editedField())
        edited->setIgnored(ignored);
}

void HbMFieldWidget::setDefaultFieldValue()
{
    if (SoMField *const edited = editedField())
        setToDefault(*edited);
}
