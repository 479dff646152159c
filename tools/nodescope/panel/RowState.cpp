// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowState.h"

#include "FieldText.h"
#include "NodeOrigin.h"
#include "NodesInFields.h"
#include "RowIcons.h"
#include "RowLink.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <Inventor/fields/SoField.h>
#include <Inventor/nodes/SoNode.h>

#include <tuple>

namespace
{
class Dot : public QWidget
{
public:
    explicit Dot(QWidget *parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setObjectName(QStringLiteral("changedDot"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const qreal side = qMin(width(), height());
        QRectF round(0, 0, side, side);
        round.moveCenter(QRectF(rect()).center());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Active, QPalette::Highlight));
        painter.drawEllipse(round);
    }
};

QColor between(const QColor &first, const QColor &second)
{
    return QColor::fromRgbF((first.redF() + second.redF()) / 2, (first.greenF() + second.greenF()) / 2,
                            (first.blueF() + second.blueF()) / 2);
}

/// Sets what differs and leaves all else to the parent's palette.
QPalette paletteFor(const QPalette &usual, bool isDimmed, bool isLocked)
{
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::Highlight})
            if (isDimmed)
                palette.setColor(group, role, between(usual.color(group, role), usual.color(group, QPalette::Window)));
        if (isLocked)
            palette.setColor(group, QPalette::Base, usual.color(group, QPalette::Window));
    }
    return palette;
}
bool isDriven(const SoField &field)
{
    return field.isConnected() && field.isConnectionEnabled();
}

/// Where the value comes from, or which nodes it is; empty where there is nothing to say.
QString linkOf(const SoField &field)
{
    constexpr std::size_t mostNames = 4;
    const std::vector<SoNode *> nodes = nodesAt(field);
    if (const QString source = FieldText::source(field); !source.isEmpty() && isDriven(field)) {
        const SbName name = nodes.empty() ? SbName() : nodes.front()->getName();
        const QString which = QStringLiteral(" (%1)").arg(QString::fromLatin1(name.getString()));
        return QStringLiteral("\u2190 ") + source + (name.getLength() > 0 ? which : QString());
    }
    QStringList names;
    for (std::size_t i = 0; i < nodes.size() && i < mostNames; ++i)
        names += FieldText::nodeName(*nodes[i]);
    if (nodes.size() > mostNames)
        names += QStringLiteral("\u2026");
    return names.isEmpty() ? QString() : QStringLiteral("\u2192 ") + names.join(QStringLiteral(", "));
}
} // namespace

bool RowState::Shown::operator==(const Shown &other) const
{
    const auto all = [](const Shown &s) {
        return std::tie(s.isChanged, s.isIgnored, s.isForeign, s.obstacle, s.link, s.isLeading);
    };
    return all(*this) == all(other);
}

RowState::RowState(QWidget &editor, QLabel &label)
    : m_editor(editor), m_label(label), m_dot(new Dot(&label)),
      m_defaultButton(editor.findChild<QPushButton *>(QStringLiteral("m_defaultButton"))),
      m_ignoreButton(editor.findChild<QPushButton *>(QStringLiteral("m_ignoreButton"))), m_lock(editor)
{
    if (m_defaultButton) {
        m_defaultButton->setIcon(RowIcons::setToDefault());
        m_defaultButton->setEnabled(false);
    }
    if (m_ignoreButton)
        m_ignoreButton->setIcon(RowIcons::ignoreField());
    m_dot->hide();
    prepareLabel();
    m_label.installEventFilter(this);
    m_editor.installEventFilter(this);
}

/// The dot has its room always, so that the text does not move.
void RowState::prepareLabel()
{
    const int room = m_label.fontMetrics().height() * 2 / 3;
    QMargins margins = m_label.contentsMargins();
    margins.setLeft(room);
    m_label.setContentsMargins(margins);
    m_dot->resize(room / 2, room / 2);
    align();
}

void RowState::show(const SoField &field)
{
    Shown now;
    now.obstacle = FieldText::obstacle(field);
    now.isIgnored = field.isIgnored();
    now.isForeign = NodeOrigin::of(field.getContainer()).kind != NodeOrigin::Scene;
    now.isChanged = !isDriven(field) && m_default.isUnlike(field);
    now.link = linkOf(field);
    now.isLeading = !nodesAt(field).empty();
    if (now == m_shown)
        return;
    m_shown = now;
    m_lock.setLocked(!now.obstacle.isEmpty());
    showLabel();
    showControls();
    showLink();
}

void RowState::showLabel()
{
    m_dot->setVisible(m_shown.isChanged);
    QFont font = m_label.font();
    font.setStrikeOut(m_shown.isIgnored);
    m_label.setFont(font);
    QStringList facts;
    if (!m_shown.obstacle.isEmpty())
        facts += m_shown.obstacle;
    if (m_shown.isIgnored)
        facts += tr("Ignored: the scene is drawn as if this field had not been set.");
    if (m_shown.isChanged)
        facts += tr("Differs from its default.");
    m_editor.setAccessibleDescription(facts.join(QLatin1Char(' ')));
    if (!facts.isEmpty())
        facts.prepend(m_editor.toolTip());
    m_label.setToolTip(facts.join(QLatin1Char('\n')));
    if (m_ignoreButton)
        m_ignoreButton->setEnabled(!m_shown.isForeign);
    if (!m_defaultButton)
        return;
    if (!isChanged() && m_defaultButton->hasFocus())
        m_defaultButton->previousInFocusChain()->setFocus(); // keys stay in the row
    m_defaultButton->setEnabled(isChanged());
}

/// Not the buttons at the end: they switch the state.
void RowState::showControls()
{
    const QPalette palette = paletteFor(m_editor.palette(), m_shown.isIgnored, isLocked());
    const auto parts = m_editor.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *const part : parts)
        if (part != &m_label && part != m_defaultButton && part->objectName() != QLatin1String("m_ignoreButton"))
            part->setPalette(palette);
}

void RowState::showLink()
{
    if (!m_shown.link.isEmpty() && !m_link)
        insertLink();
    if (!m_link)
        return;
    m_link->setText(m_shown.link, m_shown.obstacle);
    m_link->setLeading(m_shown.isLeading);
    m_link->setVisible(!m_shown.link.isEmpty());
    align();
}

/// Where the editor stands in another kind of layout, of a plug-in, the label's tool tip has to do.
void RowState::insertLink()
{
    QWidget *const page = m_editor.parentWidget();
    auto *const rows = page ? qobject_cast<QVBoxLayout *>(page->layout()) : nullptr;
    const int at = rows ? rows->indexOf(&m_editor) : -1;
    if (at < 0)
        return;
    m_link = new RowLink(page);
    rows->insertWidget(at + 1, m_link);
    connect(&m_editor, &QObject::destroyed, m_link, &QObject::deleteLater);
    connect(m_link, &RowLink::clicked, this, &RowState::linkClicked);
}

void RowState::align()
{
    const int left = (m_label.contentsMargins().left() - m_dot->width()) / 2;
    m_dot->move(left, (m_label.height() - m_dot->height()) / 2);
    if (m_link)
        m_link->setIndent(m_label.geometry().right());
}

bool RowState::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_label && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        align();
    else if (watched == &m_label && event->type() == QEvent::FontChange)
        prepareLabel();
    else if (watched == &m_editor && event->type() == QEvent::Show)
        showLink(); // now it stands among other rows
    else if (watched == &m_editor && event->type() == QEvent::PaletteChange)
        showControls();
    return false;
}
