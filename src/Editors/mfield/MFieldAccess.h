// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef MFIELDACCESS_H
#define MFIELDACCESS_H

#include "support/FieldWatch.h"

#include <HbMFieldWidget.h>

#include <Inventor/fields/SoMField.h>

template <class F> F *HbMFieldWidget::fieldAs() const
{
    return fieldCast<F>(editedField());
}

#endif
