// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFIMAGELABEL_H
#define HBSFIMAGELABEL_H

#include <harborapi_export.h>

#include <QLabel>

/// A thumbnail that shows a larger view, of at most 256 by 256 pixels, when the pointer moves over it.
class HARBORAPI_EXPORT HbSFImageLabel : public QLabel
{
public:
    /// @p width and @p height are the thumbnail's size in pixels. A null @p name gives the object name
    /// "HbSFImageLabel".
    HbSFImageLabel(int width, int height, QWidget *parent, const char *name);
    ~HbSFImageLabel() override;

    /// Shows a pixmap; a null one empties both views.
    void setPixmap(const QPixmap &pixmap);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QLabel *m_popup;
};

#endif
