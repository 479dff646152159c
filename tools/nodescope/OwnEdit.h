// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef OWNEDIT_H
#define OWNEDIT_H

/// Stands while the tool itself writes to the scene and takes care of the undo step.
class OwnEdit
{
public:
    OwnEdit() { ++s_running; }
    ~OwnEdit() { --s_running; }
    OwnEdit(const OwnEdit &) = delete;
    OwnEdit &operator=(const OwnEdit &) = delete;

    static bool isRunning() { return s_running > 0; }

private:
    inline static int s_running = 0;
};

#endif
