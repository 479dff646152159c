// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBNSCPLUGINS_H
#define HBNSCPLUGINS_H

#include <harborapi_export.h>

#include <Inventor/SbString.h>

class HbGUIManagement;

/**
 * Root of every plug-in object: editors, GUI components and what plug-in libraries hand out.
 *
 * A plug-in describes itself by four texts, knows the main window it serves and the library it came from.
 */
class HARBORAPI_EXPORT HbNscPlugins
{
public:
    /// @p management is the tool's main window; it is only stored, never owned, and may be null.
    explicit HbNscPlugins(HbGUIManagement *management);

    HbNscPlugins(const HbNscPlugins &) = delete;
    HbNscPlugins &operator=(const HbNscPlugins &) = delete;

    /// One line that says what the plug-in does.
    virtual SbString getDescription() const = 0;
    /// How to use the plug-in.
    virtual SbString getHelp() const = 0;
    /// The name shown to the user.
    virtual SbString getName() const = 0;
    /// The plug-in's own version.
    virtual SbString getVersion() const = 0;

    virtual ~HbNscPlugins();

    /// Remembers the full path of the library that the object came from; the plug-in loader calls this.
    void setPath(const SbString &path);
    /// The path given to setPath(); empty until then.
    SbString getPath() const;

protected:
    HbGUIManagement *management;
    SbString path;
};

#endif
