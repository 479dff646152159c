// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWSCOMMAND_H
#define ROWSCOMMAND_H

#include <QUndoCommand>

#include <memory>
#include <vector>

class SoFieldContainer;
class SoMField;

/// Values that took the place of others.
struct RowsChange {
    int row;
    std::shared_ptr<SoMField> before; ///< as many values as stood there
    std::shared_ptr<SoMField> after;
};

/// One undo step: some values of a field were changed, added or removed. Holds those alone, to the bit, and keeps the
/// field's node alive.
class RowsCommand : public QUndoCommand
{
public:
    /// The field is as after the changes already; redo() does nothing the first time. Commands of one series that
    /// change the same row merge.
    RowsCommand(SoMField &field, std::vector<RowsChange> changes, bool wasDefault, int series);

    void undo() override;
    void redo() override;
    int id() const override { return m_series; }
    bool mergeWith(const QUndoCommand *next) override;

private:
    void describe();
    int rowCountBefore() const;
    QString rowText(const QString &one, const QString &several, int first, int last) const;

    std::shared_ptr<SoFieldContainer> m_container;
    SoMField &m_field;
    std::vector<RowsChange> m_changes;
    bool m_wasDefault;
    int m_series;
    bool m_done = true;
};

/// One undo step: two components were exchanged in all values of a field.
class SwapColumnsCommand : public QUndoCommand
{
public:
    SwapColumnsCommand(SoMField &field, int first, int second, bool wasDefault);

    void undo() override;
    void redo() override;

private:
    std::shared_ptr<SoFieldContainer> m_container;
    SoMField &m_field;
    int m_first;
    int m_second;
    bool m_wasDefault;
    bool m_done = true;
};

#endif
