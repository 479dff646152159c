// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef VIEWPICKACTION_H
#define VIEWPICKACTION_H

#include <Inventor/actions/SoRayPickAction.h>

#include <memory>
#include <vector>

class SoCamera;

/**
 * Finds what one camera sees: passes over the cameras that stand in the scene itself and over shapes that are not
 * drawn, and finds what a scene declares as unpickable, which may need a look as well.
 */
class ViewPickAction : public SoRayPickAction
{
    SO_ACTION_HEADER(ViewPickAction);

public:
    static void initClass();

    ViewPickAction(const SbViewportRegion &viewport, const SoCamera *camera);
    ~ViewPickAction() override;

    void apply(SoNode *root) override;
    /// From the next time on, counts every shape as one that Coin cannot meet: some it cannot, say faces whose list of
    /// normals is empty, and nothing tells.
    void meetNothing() { m_meetsNothing = true; }

    /// The hits, the nearest first, where what is drawn in front of everything counts as nearest.
    std::vector<const SoPickedPoint *> hits() const;
    /// Shapes that stand around the line of sight, but of a kind that Coin draws and cannot meet.
    const std::vector<std::shared_ptr<SoPath>> &unmet() const { return m_unmet; }

private:
    static void useCamera(SoAction *action, SoNode *camera);
    static void useDrawStyle(SoAction *action, SoNode *style);
    static void pickShape(SoAction *action, SoNode *shape);

    const SoCamera *m_camera; ///< only compared
    bool m_meetsNothing = false;
    std::vector<std::shared_ptr<SoPath>> m_unmet;
};

#endif
