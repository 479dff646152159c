// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause
//
// An editor for a type of node: the library's field editors, and two rows of buttons of its own.

#include "CameraRows.h"

#include <HbFieldEditors.h>
#include <HbGUIManagement.h>
#include <HbRangeComponent.h>
#include <HbSFFloatWidget.h>
#include <HbSFRotationWidget.h>
#include <HbSFVec3fWidget.h>

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

#include <Inventor/nodes/SoPerspectiveCamera.h>

#include <algorithm>
#include <utility>

class Nsc_CameraEditor : public HbEditors
{
    Q_DECLARE_TR_FUNCTIONS(Nsc_CameraEditor)

public:
    Q_DECL_EXPORT static HbNscPlugins *getInstance(HbGUIManagement *management);
    Q_DECL_EXPORT static void releaseInstance();

    SbString getName() const override { return "Camera"; }
    SbString getDescription() const override { return "Edits a perspective camera by lens, roll and horizon"; }
    SbString getHelp() const override { return "Select a PerspectiveCamera in the scene"; }
    SbString getVersion() const override { return "1.0"; }

    void updateEditor() override;

protected:
    bool event(QEvent *event) override;

private:
    explicit Nsc_CameraEditor(HbGUIManagement *tool);
    void build(SoPerspectiveCamera &camera);
    void letGo();

    QPointer<HbGUIManagement> m_tool;
    QPointer<QWidget> m_page; ///< the field editors of one camera
    QTimer m_hidden;
};

namespace
{
QPointer<Nsc_CameraEditor> instance; // null where the main window has ended first

void alignLabels(const QWidget &page)
{
    const auto labels = page.findChildren<QLabel *>(QStringLiteral("m_label"));
    int width = 0;
    for (const QLabel *const label : labels)
        width = std::max(width, label->sizeHint().width());
    for (QLabel *const label : labels)
        label->setFixedWidth(width);
}
} // namespace

HbNscPlugins *Nsc_CameraEditor::getInstance(HbGUIManagement *management)
{
    if (!instance)
        instance = new Nsc_CameraEditor(management); // owned by the main window, or by the tool's area that shows it
    return instance;
}

void Nsc_CameraEditor::releaseInstance()
{
    delete instance;
}

Nsc_CameraEditor::Nsc_CameraEditor(HbGUIManagement *tool) : HbEditors(tool, {}), m_tool(tool)
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_hidden.setSingleShot(true);
    connect(&m_hidden, &QTimer::timeout, this, [this] {
        if (isHidden())
            letGo();
    });
    registerEditor(SoPerspectiveCamera::getClassTypeId());
}

/// Runs whenever a camera is selected, and before the tool shows this frame.
void Nsc_CameraEditor::updateEditor()
{
    SoNode *const node = std::exchange(currentNode, nullptr); // nobody says when it dies
    letGo();
    // a node may also have been found by the name that editors without a name have
    if (m_tool && node && node->isOfType(SoPerspectiveCamera::getClassTypeId()))
        build(*static_cast<SoPerspectiveCamera *>(node));
}

void Nsc_CameraEditor::build(SoPerspectiveCamera &camera)
{
    m_page = new QWidget(this);
    auto *const column = new QVBoxLayout(m_page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    // The tool supplies the manager that records edits, shows the present value and follows the field from then on.
    const auto add = [&](SoField &field, const HbGUIManagement::FieldEditorFactory &create) {
        HbFieldEditors *const editor = m_tool->createFieldEditor(&field, create);
        column->addWidget(editor);
        editor->show();
    };
    const auto addSlider = [&](const QString &label, SoSFFloat &field, const HbRangeComponent &range) {
        add(field, [&](HbFieldEditorCommandManager *manager) {
            return new HbSFFloatWidget(label.toUtf8().constData(), range, manager, m_page, nullptr, {});
        });
    };

    add(camera.heightAngle,
        [&](HbFieldEditorCommandManager *manager) { return newLensRow(tr("Lens"), manager, m_page); });
    addSlider(tr("Opening angle"), camera.heightAngle, HbRangeComponent(0.05F, 3.0F, true));
    addSlider(tr("Near"), camera.nearDistance, HbRangeComponent(0.0F, 10.0F, false));
    addSlider(tr("Far"), camera.farDistance, HbRangeComponent(0.0F, 100.0F, false));
    add(camera.position, [&](HbFieldEditorCommandManager *manager) {
        return new HbSFVec3fWidget(tr("Position").toUtf8().constData(), manager, m_page, nullptr, {});
    });
    add(camera.orientation,
        [&](HbFieldEditorCommandManager *manager) { return newRollRow(tr("Roll"), manager, m_page); });
    add(camera.orientation, [&](HbFieldEditorCommandManager *manager) {
        return new HbSFRotationWidget(tr("Orientation").toUtf8().constData(), manager, m_page, nullptr, {});
    });
    alignLabels(*m_page);
    layout()->addWidget(m_page);
    m_page->show();
}

/// The field editors keep their camera alive in the tool, so they do not stay when it is no longer selected.
void Nsc_CameraEditor::letGo()
{
    if (!m_page)
        return;
    m_page->hide();
    m_page->deleteLater(); // one of its editors may be what made the tool select another node
    m_page.clear();
}

bool Nsc_CameraEditor::event(QEvent *event)
{
    if (event->type() == QEvent::HideToParent)
        m_hidden.start(0); // unless it is for another camera that the tool hides and shows this
    return HbEditors::event(event);
}
