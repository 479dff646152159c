// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef IMAGEPREVIEW_H
#define IMAGEPREVIEW_H

#include <QObject>

class QWidget;

/// Hides the large picture of an image when the pointer leaves the thumbnail: as a popup it would stay until a click,
/// and take that one.
class ImagePreview : public QObject
{
public:
    /// Of an editor, to which it belongs; does nothing where the editor shows no image.
    static void watchIn(QWidget &editor);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ImagePreview(QWidget &thumbnail, QWidget &popup);

    QWidget &m_thumbnail;
    QWidget &m_popup;
};

#endif
