// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFIMAGEWIDGET_H
#define HBSFIMAGEWIDGET_H

#include <HbSFieldWidget.h>

class HbSFImageLabel;

/// Shows an SoSFImage as a thumbnail, and enlarged while the pointer is on it; it does not edit.
class HARBORAPI_EXPORT HbSFImageWidget : public HbSFieldWidget
{
public:
    HbSFImageWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbSFImageWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFImageWidget() override;

    void refresh() override;
    /// Does nothing: an image is only shown.
    void applyChanges() override;

    /// Sets @p pixmap to the field's image; leaves it alone where the field is no image or an empty one.
    /// Images of one and two components are taken as they are stored, the latter as 16-bit colour; those of
    /// three and four are turned over, as the field's first row is the lowest.
    static void getPixmapFromField(SoField *field, QPixmap &pixmap);
    /// A copy of @p size bytes, which the caller deletes as an array.
    static unsigned char *copyBuffer(const unsigned char *data, int size);

protected:
    void initClass();

private:
    HbSFImageLabel *m_imageBox;
};

#endif
