// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PLAINROW_H
#define PLAINROW_H

#include <QSizePolicy>
#include <QString>

#include <vector>

class QCheckBox;
class QComboBox;
class QFrame;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPixmap;
class QPushButton;
class QSlider;
class QSpinBox;
class QWidget;
class SoField;

/// What a person writes who edits a field without the library: the same controls in the same layouts.
/// Nothing is connected.
struct PlainRow {
    enum Finish {
        Bare, ///< as little as does the job
        Complete, ///< also the frames and the names that the editors have
        WithoutPopup ///< complete, but what pops up is left for when it is opened
    };

    /// What stands between the label and the buttons.
    struct Area {
        void (*fill)(PlainRow &row, const SoField *field);
        QSizePolicy::Policy stretch = QSizePolicy::Minimum; ///< of the space on both sides
    };

    PlainRow(const QString &text, const Area &area, const SoField *field, Finish finish, QWidget *parent);

    /// Names a control for programs and for screen readers, unless the row is bare.
    void setNames(QWidget *control, const char *objectName, const QString &accessibleName) const;
    QPushButton *newButton(const QPixmap &icon, const char *objectName, const QString &toolTip) const;

    Finish finish;
    QString text;
    QFrame *frame;
    QFrame *area;
    QHBoxLayout *layout; ///< the area's
    QHBoxLayout *buttons;
    QPushButton *ignore;

    // those that the area has
    std::vector<QLineEdit *> edits;
    QLineEdit *line = nullptr;
    QSlider *slider = nullptr;
    std::vector<QSpinBox *> spins;
    std::vector<QCheckBox *> boxes;
    QComboBox *combo = nullptr;
    QPushButton *swatch = nullptr;
    QLabel *picture = nullptr;
    QLabel *enlarged = nullptr;

private:
    QLabel *newLabel() const;
};

#endif
