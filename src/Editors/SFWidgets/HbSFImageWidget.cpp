// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFImageWidget.h>

#include "Editors/FieldEditorSettings.h"
#include "support/FieldWatch.h"

#include <HbSFImageLabel.h>

#include <QHBoxLayout>
#include <QPixmap>

#include <Inventor/fields/SoSFImage.h>

#include <algorithm>
#include <memory>

namespace
{
using Bytes = std::unique_ptr<unsigned char[]>;

/// Blue, green, red and alpha of each pixel, the last row first: Coin's first row is the lowest.
Bytes turnedPixels(const unsigned char *pixels, int width, int height, int components)
{
    const auto rowLength = static_cast<std::size_t>(width) * static_cast<std::size_t>(components);
    Bytes turned(new unsigned char[static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4]);
    unsigned char *target = turned.get();
    for (int row = height - 1; row >= 0; --row) {
        const unsigned char *source = pixels + static_cast<std::size_t>(row) * rowLength;
        for (int column = 0; column < width; ++column, source += components) {
            *target++ = source[2];
            *target++ = source[1];
            *target++ = source[0];
            *target++ = components == 4 ? source[3] : 255;
        }
    }
    return turned;
}

QVector<QRgb> greys()
{
    QVector<QRgb> table;
    for (int level = 0; level < 256; ++level)
        table.append(qRgb(level, level, level));
    return table;
}
} // namespace

HbSFImageWidget::HbSFImageWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFImageWidget", flags)
{
    initClass();
}

HbSFImageWidget::HbSFImageWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbSFImageWidget(nullptr, manager, parent, name, flags)
{
}

HbSFImageWidget::~HbSFImageWidget() = default;

void HbSFImageWidget::initClass()
{
    const int side = nscsettings_fieldEditor(QStringLiteral("SFBoolWidth"));
    m_imageBox = new HbSFImageLabel(side, side, m_editionFrame, "m_imageBox");
    m_editLayout->addWidget(m_imageBox);
}

void HbSFImageWidget::refresh()
{
    QPixmap pixmap;
    if (SoField *const edited = editedField())
        getPixmapFromField(edited, pixmap);
    m_imageBox->setPixmap(pixmap);
    HbSFieldWidget::refresh();
}

void HbSFImageWidget::applyChanges() { }

unsigned char *HbSFImageWidget::copyBuffer(const unsigned char *data, int size)
{
    auto *const copy = new unsigned char[static_cast<std::size_t>(qMax(size, 0))];
    std::copy_n(data, qMax(size, 0), copy);
    return copy;
}

void HbSFImageWidget::getPixmapFromField(SoField *field, QPixmap &pixmap)
{
    const auto *const imageField = fieldCast<SoSFImage>(field);
    if (!imageField)
        return;
    SbVec2s size;
    int components = 0;
    const unsigned char *const pixels = imageField->getValue(size, components);
    if (!pixels)
        return;
    const int width = size[0];
    const int height = size[1];
    Bytes buffer;
    QImage image;
    // the length of a row is always told: QImage would take rows for padded to 4 bytes
    switch (components) {
    case 1:
        buffer.reset(copyBuffer(pixels, width * height));
        image = QImage(buffer.get(), width, height, width, QImage::Format_Indexed8);
        image.setColorTable(greys());
        break;
    case 2: // luminance and alpha read as one 16-bit colour, deliberately
        buffer.reset(copyBuffer(pixels, width * height * 2));
        image = QImage(buffer.get(), width, height, width * 2, QImage::Format_RGB16);
        break;
    case 3:
    case 4:
        buffer = turnedPixels(pixels, width, height, components);
        image = QImage(buffer.get(), width, height, width * 4, QImage::Format_ARGB32);
        break;
    default:
        break;
    }
    pixmap = QPixmap::fromImage(image);
}
