// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef UNTOUCHEDPARTS_H
#define UNTOUCHEDPARTS_H

#include "NumberParts.h"

class HbFieldEditors;

/// Whether a colour dialog, which knows 8 bits of each channel, has left the channel alone.
bool isSameLevel(float chosen, float before);

/// What the editor's edits hold: a number of @p before, which they showed, where nobody typed. None for other editors.
NumberParts::Numbers numbersIn(const HbFieldEditors &editor, NumberParts::Numbers before);

/**
 * Undoes the rounding of what the user left alone.
 *
 * An editor of several numbers writes them all as it shows them. This puts back the number from
 * @p before wherever the editor's text is still that number's, and leaves fields of other types alone.
 */
void keepUntouchedParts(const HbFieldEditors &editor, const SoField &before, SoField &edited);

#endif
