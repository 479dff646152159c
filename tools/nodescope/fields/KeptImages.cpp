// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "KeptImages.h"

#include <Inventor/fields/SoField.h>

KeptImages::KeptImages(const SoField &field) : m_images(imagesBeside(field)) { }

KeptImages::~KeptImages()
{
    for (const FieldState &image : m_images)
        if (!image.state.isDefault() && image.field->isDefault()
            && image.state.isSameValue(FieldSnapshot(*image.field)))
            image.field->setDefault(FALSE);
}
