// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDSNAPSHOT_H
#define FIELDSNAPSHOT_H

#include <QString>

#include <memory>
#include <optional>

class SoField;

/**
 * What a field held at one moment, to the last bit, with the two flags that decide how it is saved.
 *
 * Never goes through the field's text, which loses bits.
 */
class FieldSnapshot
{
public:
    explicit FieldSnapshot(const SoField &field);

    /// What @p field holds in a new node of its class; nothing where no such node can be made.
    static std::optional<FieldSnapshot> ofDefault(const SoField &field);

    /// Gives a field of the same type the value and the flags; a value that it has is not written again.
    void restore(SoField &field) const;

    /// NaN equals itself, 0 and -0 differ.
    bool isSameValue(const FieldSnapshot &other) const;
    bool operator==(const FieldSnapshot &other) const;

    const SoField &value() const { return *m_value; }
    bool isDefault() const { return m_default; }
    bool isIgnored() const { return m_ignored; }
    void setIgnored(bool ignored) { m_ignored = ignored; }

    /// The value as text, shortened.
    QString text() const;

private:
    std::shared_ptr<SoField> m_value; ///< never written to, so copies of a snapshot share it
    bool m_default;
    bool m_ignored;
};

#endif
