// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EDITORKINDS_H
#define EDITORKINDS_H

#include <HbSFieldWidget.h>

#include <QStringList>

#include <memory>
#include <vector>

class HbFieldEditorCommandManager;
class QRandomGenerator;

/// One row of the contract: an editor, its field's type, and values in the field's notation.
struct EditorKind {
    QByteArray name;
    const char *fieldType;
    HbSFieldWidget *(*build)(HbFieldEditorCommandManager *);
    void (*change)(HbSFieldWidget &, const QString &); ///< what a person does to commit a text
    QStringList values; ///< extremes among them
    QString typed;
    QString written; ///< what the field holds once that was typed over the last value
};

/// Every editor that can change its field through the usual commit.
const std::vector<EditorKind> &editorKinds();

/// A field of that type, with the names A, B and C for 0, 1 and 2 if it is an enumeration.
std::unique_ptr<SoField> makeField(const char *type, const char *value = nullptr);

QString textOf(SoField &field);

/// Knows infinities and NaN, unlike the field's own parser.
void setText(SoField &field, const QString &text);

void setRandomValue(SoField &field, QRandomGenerator &random);

/// Whether two texts of the field's type are one value in the precision that editors show.
bool isSameOnDisplay(const SoField &field, const QString &first, const QString &second);

#endif
