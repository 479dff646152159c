// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFCOLORWIDGET_H
#define HBSFCOLORWIDGET_H

#include <HbSFieldWidget.h>

#include <array>

class QLabel;
class QLineEdit;

/**
 * Edits an SoSFColor with a swatch, which opens the colour dialog, and three edits.
 *
 * Components are written as typed, also beyond 0 to 1; the swatch then keeps what it showed.
 */
class HARBORAPI_EXPORT HbSFColorWidget : public HbSFieldWidget
{
    Q_OBJECT

public:
    HbSFColorWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbSFColorWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFColorWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

    /// Paints the swatch in the working colour, if that is one.
    void displayColor();

protected Q_SLOTS:
    void changeRValue(const QString &str);
    void changeGValue(const QString &str);
    void changeBValue(const QString &str);
    /// Asks for a colour and commits it.
    void getColorEditor();

protected:
    void initClass();
    void buildComponent(QLineEdit *&edit, QLabel *&label);

private:
    QColor workingColor() const;

    QPushButton *m_colorDisp;
    std::array<QLineEdit *, 3> m_edits; ///< red, green, blue
    std::array<QLabel *, 3> m_labels;
    std::array<float, 3> m_color{}; ///< follows the edits as they are typed in
};

#endif
