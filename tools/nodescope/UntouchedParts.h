// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef UNTOUCHEDPARTS_H
#define UNTOUCHEDPARTS_H

class HbFieldEditors;
class SoField;

/**
 * Undoes the rounding of what the user left alone.
 *
 * An editor of several numbers writes them all with the 6 digits that it shows. This puts back the number from
 * @p before wherever the editor's text is still that number's, and leaves fields of other types alone.
 */
void keepUntouchedParts(const HbFieldEditors &editor, const SoField &before, SoField &edited);

#endif
