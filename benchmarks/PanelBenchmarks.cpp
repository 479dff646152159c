// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "Comparison.h"
#include "ManyFields.h"
#include "PlainAreas.h"
#include "Windows.h"

#include "tools/nodescope/CoinRef.h"
#include "tools/nodescope/FieldPanel.h"

#include <QImage>
#include <QLineEdit>
#include <QScrollArea>
#include <QUndoStack>
#include <QVBoxLayout>

#include <Inventor/nodes/SoMatrixTransform.h>
#include <Inventor/nodes/SoTransform.h>

#include <memory>
#include <stdexcept>

namespace
{
constexpr int fieldCount = 30;
constexpr int changes = 100;
constexpr QSize windowSize(420, 1400); // all rows can be seen

QImage newPicture()
{
    return QImage(windowSize, QImage::Format_ARGB32_Premultiplied);
}

QWidget *newPlainRow(QWidget *parent)
{
    return PlainRow(QStringLiteral("field"), {PlainAreas::threeEdits}, nullptr, PlainRow::Bare, parent).frame;
}

/// The panel, and two nodes of one class.
class Panel
{
public:
    Panel()
    {
        for (ManyFields *const node : {m_first, m_second})
            node->ref();
        showNow(m_panel, windowSize);
    }
    ~Panel()
    {
        m_panel.setNode(nullptr);
        for (ManyFields *const node : {m_first, m_second})
            node->unref();
    }
    Panel(const Panel &) = delete;
    Panel &operator=(const Panel &) = delete;

    double selectFirst() { return selectAnew(m_first); }

    double selectAnew(SoNode *node)
    {
        select(nullptr);
        deleteLeftovers();
        return secondsOf([=] { select(node); });
    }

    double selectSecond()
    {
        select(m_first);
        return secondsOf([this] { select(m_second); });
    }

    double paint()
    {
        select(m_first);
        return secondsOf([this] { m_panel.render(&m_picture); });
    }

    double changeOneField()
    {
        return secondsToFollow([this] { change(); });
    }

    double refreshAllFields()
    {
        select(m_first);
        m_first->changeAll();
        return secondsOf([this] { select(m_first); }); // the node that is selected: refreshed throughout
    }

    double changeTogether()
    {
        return secondsToFollow([this] {
            for (int i = 1; i < changes; ++i)
                m_first->reals[0].setValue(nextValue());
            change();
        });
    }

    double changeOneByOne()
    {
        return secondsToFollow([this] {
            for (int i = 0; i < changes; ++i)
                change();
        });
    }

private:
    /// Fails unless the editor shows the field's value in the end.
    double secondsToFollow(const std::function<void()> &work)
    {
        select(m_first);
        const double seconds = secondsOf(work);
        const QString shown = m_panel.findChild<QLineEdit *>()->text(); // that of the first field
        if (shown.toFloat() != m_first->reals[0].getValue())
            throw std::logic_error("the editor does not follow its field");
        return seconds;
    }

    float nextValue() { return m_value = m_value > 9 ? 0 : m_value + 0.1f; }

    void change()
    {
        m_first->reals[0].setValue(nextValue());
        turn(m_panel);
    }

    void select(SoNode *node)
    {
        m_panel.setNode(node);
        turn(m_panel);
    }

    QImage m_picture = newPicture();
    QUndoStack m_stack;
    FieldPanel m_panel{&m_stack};
    ManyFields *m_first = new ManyFields;
    ManyFields *m_second = new ManyFields;
    float m_value = 0;
};

/// Rows laid out by hand.
class PlainPanel
{
public:
    PlainPanel()
    {
        m_area.setWidgetResizable(true);
        showNow(m_area, windowSize);
    }

    double build()
    {
        delete m_area.takeWidget();
        turn(m_area);
        return secondsOf([this] {
            auto *const page = new QWidget;
            auto *const layout = new QVBoxLayout(page);
            for (int i = 0; i < fieldCount; ++i)
                layout->addWidget(newPlainRow(page));
            m_area.setWidget(page);
            turn(m_area);
        });
    }

    double paint()
    {
        build();
        return secondsOf([this] { m_area.render(&m_picture); });
    }

private:
    QImage m_picture = newPicture();
    QScrollArea m_area;
};

using Step = double (Panel::*)();

void comparePanel(const Comparison &comparison, Step measured, Step baseline)
{
    compare(comparison, [=] {
        const auto panel = std::make_shared<Panel>();
        return Sides{[=] { return ((*panel).*measured)(); }, [=] { return ((*panel).*baseline)(); }};
    });
}

template <class Node, class Other> void compareNodes(const char *node, const char *other)
{
    compare({std::string("selecting a ") + node, std::string("selecting a ") + other}, [] {
        const std::shared_ptr<SoNode> nodes[] = {coinRef(new Node), coinRef(new Other)};
        const auto panel = std::make_shared<Panel>();
        return Sides{[=, node = nodes[0]] { return panel->selectAnew(node.get()); },
                     [=, node = nodes[1]] { return panel->selectAnew(node.get()); }};
    });
}
} // namespace

void addPanelBenchmarks()
{
    ManyFields::initClass();
    const std::string selecting = "selecting a node with 30 fields";
    compare({selecting, "30 plain rows with three edits"}, [] {
        const auto panel = std::make_shared<Panel>();
        const auto plain = std::make_shared<PlainPanel>();
        return Sides{[=] { return panel->selectFirst(); }, [=] { return plain->build(); }};
    });
    compare({"30 plain rows with three edits", "painting them once"}, [] {
        const auto plain = std::make_shared<PlainPanel>();
        return Sides{[=] { return plain->build(); }, [=] { return plain->paint(); }};
    });
    comparePanel({selecting, "painting its panel once", 2}, &Panel::selectFirst, &Panel::paint);
    comparePanel({"selecting a second node of the class", "selecting the first", 0.6}, &Panel::selectSecond,
                 &Panel::selectFirst);
    compareNodes<SoMatrixTransform, SoTransform>("MatrixTransform", "Transform");
    comparePanel({"one field changed elsewhere", "refreshing all 30", 1.0 / 50}, &Panel::changeOneField,
                 &Panel::refreshAllFields);
    comparePanel({"one field changed elsewhere", "selecting the node anew"}, &Panel::changeOneField,
                 &Panel::selectFirst);
    comparePanel({"100 changes of a value in one turn", "painting after each change", 1.0 / 50}, &Panel::changeTogether,
                 &Panel::changeOneByOne);
}
