// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDDEFAULTS_H
#define FIELDDEFAULTS_H

class SoField;

/// Gives a field the value that a fresh instance of its container has, and returns whether it could: not
/// for a field without a container, nor for a container that cannot be created or comes without the field.
bool setToDefault(SoField &field);

#endif
