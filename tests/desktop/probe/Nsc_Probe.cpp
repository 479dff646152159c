// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause
//
// The eyes of the desktop tests: a plug-in that answers each line on standard input with one line of JSON about what
// the tool shows. It changes nothing.

#include <HbFieldEditors.h>
#include <HbGUIComponents.h>
#include <HbGUIManagement.h>

#include <Inventor/fields/SoField.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/nodes/SoNode.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QSocketNotifier>
#include <QSpinBox>
#include <QTimer>
#include <QTreeWidget>

#include <cstdio>
#include <unistd.h>

class Nsc_Probe : public HbGUIComponents
{
public:
    Q_DECL_EXPORT static HbNscPlugins *getInstance(HbGUIManagement *management);
    Q_DECL_EXPORT static void releaseInstance();

    SbString getName() const override { return "Probe"; }
    SbString getDescription() const override { return "Tells what is on the screen"; }
    SbString getHelp() const override { return ""; }
    SbString getVersion() const override { return "1.0"; }

private:
    explicit Nsc_Probe(HbGUIManagement *management);
    void answer();
    SoNode *selected() const;

    QSocketNotifier m_input{STDIN_FILENO, QSocketNotifier::Read};
};

namespace
{
QPointer<Nsc_Probe> instance;

/// In pixels of the screen, whatever the scale.
QJsonArray placeOf(const QWidget &widget, const QRect &rect)
{
    const qreal scale = widget.devicePixelRatioF();
    const QPoint corner = widget.mapToGlobal(rect.topLeft());
    return {corner.x() * scale, corner.y() * scale, rect.width() * scale, rect.height() * scale};
}

QJsonObject fieldsOf(const SoNode &node)
{
    QJsonObject fields;
    SoFieldList list;
    const int count = node.getFields(list);
    for (int i = 0; i < count; ++i) {
        SbName name;
        SbString text;
        if (node.getFieldName(list[i], name) && list[i]->isOfType(SoField::getClassTypeId())) {
            list[i]->get(text);
            fields[QLatin1String(name.getString())]
                = QJsonObject{{QStringLiteral("text"), QString::fromUtf8(text.getString())},
                              {QStringLiteral("default"), bool(list[i]->isDefault())},
                              {QStringLiteral("ignored"), bool(list[i]->isIgnored())}};
        }
    }
    return fields;
}

/// What kinds of controls show beside what every widget has.
void addContent(QJsonObject &facts, const QWidget &widget)
{
    const auto text = [&facts](const QString &shown) { facts[QStringLiteral("text")] = shown; };
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        text(edit->text());
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        text(label->text());
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        text(box->currentText());
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        text(button->text());
        facts[QStringLiteral("checked")] = button->isChecked();
    }
    if (const auto *spin = qobject_cast<const QSpinBox *>(&widget))
        text(spin->text());
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(&widget))
        facts[QStringLiteral("value")] = slider->value();
}

QString fieldAround(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget())
        if (dynamic_cast<const HbFieldEditors *>(widget))
            return widget->accessibleName();
    return {};
}

QJsonObject controlFrom(const QWidget &widget)
{
    QJsonObject facts{{QStringLiteral("name"), widget.objectName()},
                      {QStringLiteral("class"), QLatin1String(widget.metaObject()->className())},
                      {QStringLiteral("accessible"), widget.accessibleName()},
                      {QStringLiteral("field"), fieldAround(&widget)},
                      {QStringLiteral("toolTip"), widget.toolTip()},
                      {QStringLiteral("title"), widget.windowTitle()},
                      {QStringLiteral("window"), widget.isWindow()},
                      {QStringLiteral("active"), widget.isActiveWindow()},
                      {QStringLiteral("enabled"), widget.isEnabled()},
                      {QStringLiteral("focus"), widget.hasFocus()},
                      {QStringLiteral("place"), placeOf(widget, widget.visibleRegion().boundingRect())}};
    addContent(facts, widget);
    return facts;
}

QJsonObject entryFrom(const QWidget &widget, const char *role, const QString &text, const QRect &rect)
{
    return {{QStringLiteral("class"), QLatin1String(role)},
            {QStringLiteral("text"), text},
            {QStringLiteral("name"), widget.objectName()},
            {QStringLiteral("field"), fieldAround(&widget)},
            {QStringLiteral("place"), placeOf(widget, rect)}};
}

/// The cells of a view that can be seen; below an open branch, too.
void addCells(QJsonArray &controls, const QAbstractItemView &view, const QModelIndex &parent = {})
{
    const QAbstractItemModel &model = *view.model();
    const auto *tree = qobject_cast<const QTreeView *>(&view);
    const QRect seen = view.viewport()->rect();
    const int first = tree ? 0 : std::max(0, view.indexAt(seen.topLeft()).row());
    for (int row = first; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            const QRect cell = view.visualRect(index) & seen;
            if (cell.isEmpty())
                continue;
            QJsonObject facts = entryFrom(*view.viewport(), "cell", index.data().toString(), cell);
            facts[QStringLiteral("row")] = row;
            facts[QStringLiteral("column")] = column;
            facts[QStringLiteral("current")] = view.currentIndex() == index;
            facts[QStringLiteral("selected")] = view.selectionModel()->isSelected(index);
            controls << facts;
        }
        const QModelIndex index = model.index(row, 0, parent);
        if (tree && tree->isExpanded(index))
            addCells(controls, view, index);
        else if (!tree && view.visualRect(index).top() > seen.bottom())
            return;
    }
}

void addEntries(QJsonArray &controls, const QWidget &widget)
{
    const auto actions = widget.actions();
    if (const auto *bar = qobject_cast<const QMenuBar *>(&widget))
        for (QAction *action : actions)
            controls << entryFrom(widget, "menu", action->text(), bar->actionGeometry(action));
    if (const auto *menu = qobject_cast<const QMenu *>(&widget)) {
        for (QAction *action : actions) {
            QJsonObject facts = entryFrom(widget, "entry", action->text(), menu->actionGeometry(action));
            facts[QStringLiteral("enabled")] = action->isEnabled();
            facts[QStringLiteral("checked")] = action->isChecked();
            controls << facts;
        }
    }
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget)) {
        const bool across = header->orientation() == Qt::Horizontal;
        for (int i = std::max(0, header->visualIndexAt(0)); i < header->count(); ++i) {
            const int start = header->sectionViewportPosition(header->logicalIndex(i));
            if (start > (across ? header->width() : header->height()))
                break;
            const int size = header->sectionSize(header->logicalIndex(i));
            const QRect section
                = across ? QRect(start, 0, size, header->height()) : QRect(0, start, header->width(), size);
            const QString text = header->model()->headerData(i, header->orientation()).toString();
            controls << entryFrom(*header->viewport(), across ? "columnHeader" : "rowHeader", text, section);
        }
    }
    if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
        view && view->model() && !qobject_cast<const QHeaderView *>(view))
        addCells(controls, *view);
}

QJsonArray visibleControls()
{
    QJsonArray controls;
    const auto widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        const bool isHeader = qobject_cast<const QHeaderView *>(widget); // its viewport covers all of it
        if (!widget->isVisible() || (widget->visibleRegion().isEmpty() && !isHeader))
            continue;
        controls << controlFrom(*widget);
        addEntries(controls, *widget);
    }
    return controls;
}
} // namespace

HbNscPlugins *Nsc_Probe::getInstance(HbGUIManagement *management)
{
    if (!instance)
        instance = new Nsc_Probe(management);
    return instance;
}

void Nsc_Probe::releaseInstance()
{
    delete instance;
}

Nsc_Probe::Nsc_Probe(HbGUIManagement *management) : HbGUIComponents(management)
{
    QObject::connect(&m_input, &QSocketNotifier::activated, this, [this] {
        char question = 0;
        if (read(STDIN_FILENO, &question, 1) != 1) {
            m_input.setEnabled(false); // the test has ended
            QCoreApplication::exit();
        } else if (question == '\n')
            QTimer::singleShot(20, this, [this] { answer(); }); // what was clicked or typed before comes first
    });
}

SoNode *Nsc_Probe::selected() const
{
    auto *const tree = qobject_cast<QTreeWidget *>(management->getSceneWidget());
    const QList<QTreeWidgetItem *> items = tree ? tree->selectedItems() : QList<QTreeWidgetItem *>();
    return items.isEmpty() ? nullptr : management->getNode(items.first());
}

void Nsc_Probe::answer()
{
    QJsonObject state{{QStringLiteral("title"), management->windowTitle()},
                      {QStringLiteral("modified"), management->isWindowModified()},
                      {QStringLiteral("controls"), visibleControls()}};
    if (const SoNode *const node = selected()) {
        state[QStringLiteral("type")] = QLatin1String(node->getTypeId().getName().getString());
        state[QStringLiteral("node")] = QString::fromLatin1(node->getName().getString());
        state[QStringLiteral("fields")] = fieldsOf(*node);
    }
    std::printf("\nprobe: %s\n", QJsonDocument(state).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}
