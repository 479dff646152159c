// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause
//
// A dock that follows the scene's tree and tells what there is below the selected node.

#include "NodeCount.h"
#include "Triangles.h"

#include <HbGUIComponents.h>
#include <HbGUIManagement.h>
#include <HbGUITreeviewManagement.h>

#include <QCoreApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QTimer>

#include <Inventor/nodes/SoNode.h>
#include <Inventor/sensors/SoNodeSensor.h>

#include <algorithm>

class Nsc_SceneStatistics : public HbGUIComponents
{
    Q_DECLARE_TR_FUNCTIONS(Nsc_SceneStatistics)

public:
    Q_DECL_EXPORT static HbNscPlugins *getInstance(HbGUIManagement *management);
    Q_DECL_EXPORT static void releaseInstance();

    SbString getName() const override { return "Scene statistics"; }
    SbString getDescription() const override { return "Counts nodes, triangles and memory below the selected node"; }
    SbString getHelp() const override { return "Open View > Statistics and select a node"; }
    SbString getVersion() const override { return "1.0"; }

    ~Nsc_SceneStatistics() override;

private:
    /// A line of the dock: what is counted, and how many.
    struct Row {
        QString title;
        QLabel *value = nullptr;
    };

    explicit Nsc_SceneStatistics(HbGUIManagement *management);
    void buildDock();
    Row addRow(QFormLayout *form, const QString &title, const QString &explanation);
    void followTree();
    void setVisible(bool visible);
    void count();
    static void show(const Row &row, const QString &text);
    static void sceneChanged(void *self, SoSensor *);

    QPointer<QDockWidget> m_dock; ///< belongs to the main window, which may be what ends
    QPointer<HbGUITreeviewManagement> m_tree;
    Row m_nodes;
    Row m_places;
    Row m_triangles;
    Row m_memory;
    QTimer m_timer;
    SoNodeSensor m_sensor{sceneChanged, this};
    bool m_isVisible = false;
    int m_pause = 0; ///< milliseconds from a change of the scene to the next count
};

namespace
{
QPointer<Nsc_SceneStatistics> instance; // null where the main window has ended first

constexpr int shortestPause = 500;
constexpr double mostPlaces = 200'000; // Coin goes to each place to count triangles
} // namespace

HbNscPlugins *Nsc_SceneStatistics::getInstance(HbGUIManagement *management)
{
    if (!instance)
        instance = new Nsc_SceneStatistics(management); // owned by the main window
    return instance;
}

void Nsc_SceneStatistics::releaseInstance()
{
    delete instance;
}

Nsc_SceneStatistics::Nsc_SceneStatistics(HbGUIManagement *management) : HbGUIComponents(management)
{
    if (!management)
        return;
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { count(); });
    buildDock();
    followTree();
}

Nsc_SceneStatistics::~Nsc_SceneStatistics()
{
    delete m_dock;
}

void Nsc_SceneStatistics::buildDock()
{
    m_dock = new QDockWidget(tr("Statistics"), management);
    // The tool remembers the dock's place under its name, also when this library is gone: so no QStringLiteral, whose
    // text would go with it.
    m_dock->setObjectName(QLatin1String("Nsc_SceneStatistics"));
    auto *const page = new QWidget(m_dock);
    auto *const form = new QFormLayout(page);
    m_nodes = addRow(form, tr("Nodes:"), tr("The selected node and all below it, shared ones counted once"));
    m_places = addRow(form, tr("Places:"), tr("The same with shared nodes counted wherever they stand"));
    m_triangles = addRow(form, tr("Triangles:"), tr("What is drawn, switched-off parts left out"));
    m_memory = addRow(form, tr("Field values:"),
                      tr("An estimate: the values of all fields by their type, shared nodes counted once.\n"
                         "Without what Coin keeps beside them: nodes, lists, caches."));
    m_dock->setWidget(page);
    connect(m_dock, &QDockWidget::visibilityChanged, this, [this](bool visible) { setVisible(visible); });
    if (!management->restoreDockWidget(m_dock)) // no place is remembered
        management->addDockWidget(Qt::LeftDockWidgetArea, m_dock);
}

Nsc_SceneStatistics::Row Nsc_SceneStatistics::addRow(QFormLayout *form, const QString &title,
                                                     const QString &explanation)
{
    auto *const value = new QLabel(form->parentWidget());
    value->setToolTip(explanation);
    value->setAccessibleDescription(explanation);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    form->addRow(title, value); // makes it the buddy of its title
    return {title, value};
}

void Nsc_SceneStatistics::followTree()
{
    m_tree = qobject_cast<HbGUITreeviewManagement *>(management->getSceneWidget());
    if (!m_tree)
        return;
    // the counting waits until the tool has done its own work, and one count serves several signals
    const auto countSoon = [this] { m_timer.start(0); };
    connect(m_tree, &QTreeWidget::currentItemChanged, this, countSoon);
    connect(m_tree, &HbGUITreeviewManagement::newSceneGraph, this, countSoon);
}

void Nsc_SceneStatistics::setVisible(bool visible)
{
    m_isVisible = visible;
    m_sensor.detach();
    if (visible)
        count(); // nothing empty is shown first
}

void Nsc_SceneStatistics::sceneChanged(void *self, SoSensor *)
{
    auto *const statistics = static_cast<Nsc_SceneStatistics *>(self);
    if (!statistics->m_timer.isActive())
        statistics->m_timer.start(statistics->m_pause);
}

void Nsc_SceneStatistics::count()
{
    if (!m_isVisible)
        return;
    QTreeWidgetItem *const item = m_tree ? m_tree->currentItem() : nullptr;
    SoNode *const node = item ? management->getNode(item) : nullptr;
    if (m_sensor.getAttachedNode() != node) {
        m_sensor.detach();
        if (node)
            m_sensor.attach(node);
    }
    if (!node) {
        for (const Row *const row : {&m_nodes, &m_places, &m_triangles, &m_memory})
            show(*row, tr("none"));
        return;
    }
    QElapsedTimer clock;
    clock.start();
    const QLocale locale;
    const NodeCount found = NodeCount::of(*node);
    show(m_nodes, locale.toString(found.nodes));
    show(m_places, found.places < 1e15 ? locale.toString(qint64(found.places)) : locale.toString(found.places, 'g', 3));
    show(m_triangles,
         found.places > mostPlaces ? tr("too many places to count")
                                   : locale.toString(Triangles::below(item, *management)));
    const QString size = locale.formattedDataSize(qint64(found.fieldBytes));
    show(m_memory, found.unknownFields == 0 ? size : tr("at least %1").arg(size));
    m_pause = std::max(shortestPause, 10 * int(clock.elapsed())); // a scene in motion must not stutter for this
}

/// A screen reader that comes to the number says what it is the number of.
void Nsc_SceneStatistics::show(const Row &row, const QString &text)
{
    row.value->setText(text);
    row.value->setAccessibleName(row.title + QLatin1Char(' ') + text);
}
