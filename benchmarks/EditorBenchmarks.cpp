// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "Comparison.h"
#include "MeasuredEditors.h"
#include "QuietManager.h"

#include <HbFieldEditors.h>

#include <QFrame>
#include <QPushButton>

#include <Inventor/fields/SoField.h>

#include <stdexcept>

namespace
{
constexpr double aim = 1.15;
constexpr int changes = 20; // enough of them that reading the clock does not count

using Fields = std::array<std::shared_ptr<SoField>, 2>;

Fields newFields(const MeasuredEditor &editor)
{
    Fields fields;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i] = editor.newField();
        if (!fields[i]->set(editor.values[i].c_str()))
            throw std::logic_error(editor.name + std::string(": no such value"));
    }
    return fields;
}

QWidget *newPlainRow(const MeasuredEditor &editor, const SoField &field, PlainRow::Finish finish, QWidget *parent)
{
    return PlainRow(QStringLiteral("field"), editor.area, &field, finish, parent).frame;
}

template <class Build> double secondsToBuild(const Build &build)
{
    QWidget parent;
    return secondsOf([&] { build(&parent); });
}

void compareBuilding(const MeasuredEditor &editor, const char *against, PlainRow::Finish finish, double wanted)
{
    compare({std::string("building one ") + editor.name, against, wanted}, [&editor, finish] {
        const auto manager = std::make_shared<QuietManager>();
        const std::shared_ptr<SoField> field = newFields(editor)[1];
        return Sides{[=, &editor] {
                         return secondsToBuild(
                             [&](QWidget *parent) { editor.newEditor(*field, manager.get(), parent); });
                     },
                     [=, &editor] {
                         return secondsToBuild([&](QWidget *parent) { newPlainRow(editor, *field, finish, parent); });
                     }};
    });
}

/// One field whose value changes, an editor and a plain row that show it.
class Shown
{
public:
    explicit Shown(const MeasuredEditor &editor)
        : m_kind(editor), m_values(newFields(editor)), m_field(newFields(editor)[0]),
          m_editor(editor.newEditor(*m_field, &m_manager, &m_parent)),
          m_row(QStringLiteral("field"), editor.area, m_field.get(), PlainRow::Complete, &m_parent)
    {
        m_editor->setField(m_field.get());
    }

    double refresh()
    {
        return secondsToFollow([this] { m_editor->refresh(); });
    }

    double showPlain()
    {
        return secondsToFollow([this] {
            m_kind.show(m_row, *m_field);
            m_row.ignore->setChecked(m_field->isIgnored());
        });
    }

private:
    template <class Show> double secondsToFollow(const Show &show)
    {
        return secondsOf([&] {
            for (int i = 0; i < changes; ++i) {
                m_field->copyFrom(*m_values[static_cast<std::size_t>(i % 2)]);
                show();
            }
        });
    }

    const MeasuredEditor &m_kind;
    Fields m_values;
    std::shared_ptr<SoField> m_field;
    QuietManager m_manager;
    QWidget m_parent;
    HbFieldEditors *m_editor;
    PlainRow m_row;
};

void compareRefreshing(const MeasuredEditor &editor)
{
    compare({editor.name + (" refreshed " + std::to_string(changes)) + " times", "plain Qt"}, [&editor] {
        const auto shown = std::make_shared<Shown>(editor);
        return Sides{[=] { return shown->refresh(); }, [=] { return shown->showPlain(); }};
    });
}
} // namespace

void addEditorBenchmarks()
{
    for (const MeasuredEditor &editor : measuredEditors()) {
        compareBuilding(editor, "plain Qt, bare", PlainRow::Bare, aim);
        compareBuilding(editor, "plain Qt with names and frames", PlainRow::Complete, aim);
        if (editor.hasPopup)
            compareBuilding(editor, "the same, its popup not yet built", PlainRow::WithoutPopup, 0);
        compareRefreshing(editor);
    }
}
