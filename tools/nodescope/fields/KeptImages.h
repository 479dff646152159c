// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef KEPTIMAGES_H
#define KEPTIMAGES_H

#include "FieldCommand.h"

/**
 * While a field is written: an image that the same node holds and saves is still saved afterwards, unless it became
 * another.
 *
 * Coin takes a texture's image for the content of its file as soon as the file's name changes, even where the file
 * cannot be read and the image stays as it was.
 */
class KeptImages
{
public:
    explicit KeptImages(const SoField &field);
    ~KeptImages();
    KeptImages(const KeptImages &) = delete;
    KeptImages &operator=(const KeptImages &) = delete;

private:
    const std::vector<FieldState> m_images;
};

#endif
