// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBGUICOMPONENTS_H
#define HBGUICOMPONENTS_H

#include <HbNscPlugins.h>

#include <QObject>

/// Base of a plug-in that is a Qt object: it can own Qt children and dies with the main window.
class HARBORAPI_EXPORT HbGUIComponents : public HbNscPlugins, public QObject
{
public:
    /// @p management becomes the Qt parent; with null the caller owns the component.
    explicit HbGUIComponents(HbGUIManagement *management);
    ~HbGUIComponents() override;
};

#endif
