// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSF2ISPINBOX_H
#define HBSF2ISPINBOX_H

#include <HbSFieldWidget.h>

#include <array>

class QLabel;
class QSpinBox;
class TranslatedTexts;

/**
 * Two labelled spin boxes: the base of the editors of integer pairs, of no use alone.
 *
 * Every change of a box commits, also one made by the program.
 */
class HARBORAPI_EXPORT HbSF2iSpinBox : public HbSFieldWidget
{
public:
    HbSF2iSpinBox(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                  Qt::WindowFlags flags);
    HbSF2iSpinBox(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSF2iSpinBox() override;

    /// Names the components, the first of the two names for the left one. Names are not translated.
    void setNameLabels(QString *names);
    /// Sets the range of both boxes: 0 the 16-bit integers, 1 the 32-bit integers, 2 the one value -1
    /// (deliberately). Any other mode changes nothing.
    void setLimits(int mode);

protected:
    void initClass();
    void buildComponent(QSpinBox *&spin, QLabel *&label);

    std::array<QSpinBox *, 2> m_spins; ///< from left to right
    std::array<QLabel *, 2> m_labels;

private:
    TranslatedTexts *m_texts; ///< a child
};

#endif
