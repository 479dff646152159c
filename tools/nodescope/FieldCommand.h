// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDCOMMAND_H
#define FIELDCOMMAND_H

#include "FieldSnapshot.h"

#include <QUndoCommand>

#include <memory>
#include <vector>

class SoFieldContainer;

/// A field of one node and a state of it.
struct FieldState {
    SoField *field;
    FieldSnapshot state;
};

/// The images that the node of @p field, which may be a file's name, keeps beside it: a texture loads its image anew
/// when its file name changes.
std::vector<FieldState> imagesBeside(const SoField &field);

/// One undo step: a field went from one state to another. Keeps the field's node alive.
class FieldCommand : public QUndoCommand
{
public:
    /// A command of its own, or one that merges with the one before it if both are of the same series.
    static constexpr int noSeries = -1;

    /// The field is in the state @p after already; redo() does nothing the first time.
    FieldCommand(SoField &field, const FieldSnapshot &before, const FieldSnapshot &after, int series);

    /// A number no other series has.
    static int newSeries();

    /// What imagesBeside() gave before the edit: goes back with the field.
    void setImagesBefore(std::vector<FieldState> images);

    void undo() override;
    void redo() override;
    int id() const override { return m_series; }
    bool mergeWith(const QUndoCommand *next) override;

private:
    void describe();
    void restore(const FieldSnapshot &state, const std::vector<FieldState> &images);

    std::shared_ptr<SoFieldContainer> m_container;
    SoField &m_field;
    FieldSnapshot m_before;
    FieldSnapshot m_after;
    std::vector<FieldState> m_imagesBefore; ///< those that the edit has changed
    std::vector<FieldState> m_imagesAfter;
    int m_series;
    bool m_done = true;
};

#endif
