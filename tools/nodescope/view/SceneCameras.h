// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENECAMERAS_H
#define SCENECAMERAS_H

/**
 * Lets the view pass over the cameras that stand in a scene; to be called once, before any is made.
 *
 * A group draws its children without asking the action, so the cameras themselves must know: those that Coin makes by
 * their type, from a file or as a copy, are from here on of classes that draw nothing for the view. To Coin, and in
 * files, they are what they were.
 */
void passOverSceneCameras();

#endif
