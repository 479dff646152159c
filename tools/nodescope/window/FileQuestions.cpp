// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileQuestions.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <vector>

namespace
{

using FileQuestions::Answer;

struct Choice {
    Answer answer;
    QString text;
};

QString tr(const char *text)
{
    return QCoreApplication::translate("FileQuestions", text);
}

QMessageBox::ButtonRole roleOf(Answer answer)
{
    const bool isDestructive = answer == Answer::Discard || answer == Answer::Reload;
    return isDestructive ? QMessageBox::DestructiveRole : QMessageBox::AcceptRole;
}

/// The first choice is what Return takes, unless it loses something. Cancel is added, and is what Escape takes.
Answer ask(QWidget *window, const QString &title, const QString &text, const QString &more,
           const std::vector<Choice> &choices)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::NoButton, window);
    box.setTextFormat(Qt::PlainText); // names of files are no markup
    box.setInformativeText(more);
    std::vector<const QAbstractButton *> buttons;
    for (const Choice &choice : choices) {
        QPushButton *const button = box.addButton(choice.text, roleOf(choice.answer));
        if (buttons.empty() && choice.answer != Answer::Reload)
            box.setDefaultButton(button);
        buttons.push_back(button);
    }
    QPushButton *const cancel = box.addButton(QMessageBox::Cancel);
    box.setEscapeButton(cancel);
    if (!box.defaultButton())
        box.setDefaultButton(cancel);
    box.exec();
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (box.clickedButton() == buttons[i])
            return choices[i].answer;
    }
    return Answer::Cancel;
}

Choice saveAs()
{
    return {Answer::SaveAs, tr("Save &As...")};
}

} // namespace

Answer FileQuestions::beforeReplacing(QWidget *window, const QString &name, const QStringList &losses,
                                      const QString &backup)
{
    const QString bullet = QStringLiteral("\u2022 ");
    const QString lines = bullet + losses.join(QLatin1Char('\n') + bullet);
    return ask(window, tr("Saving Loses Something"), tr("Saving over %1 loses:").arg(name) + QLatin1Char('\n') + lines,
               backup.isEmpty() ? backup : tr("With Save, the file as it is now is kept beside it as %1.").arg(backup),
               {saveAs(), {Answer::Save, tr("&Save")}});
}

Answer FileQuestions::fileTouched(QWidget *window, const QString &name, const QString &backup)
{
    return ask(window, tr("File Changed"),
               tr("Another program has changed %1 since it was opened or saved here.").arg(name),
               tr("With Overwrite, the file as it is now is kept beside it as %1.").arg(backup),
               {saveAs(), {Answer::Save, tr("&Overwrite")}, {Answer::Reload, tr("&Reload")}});
}

Answer FileQuestions::notSaved(QWidget *window, const QString &reason)
{
    return ask(window, tr("Not Saved"), reason, {}, {saveAs()});
}

Answer FileQuestions::unsavedChanges(QWidget *window, const QString &name)
{
    return ask(window, tr("Unsaved Changes"), tr("Save the changes to %1?").arg(name), {},
               {{Answer::Save, tr("&Save")}, {Answer::Discard, tr("&Discard")}});
}

Answer FileQuestions::reload(QWidget *window, const QString &name)
{
    return ask(window, tr("Reload"), tr("Reload %1 and lose the changes made here?").arg(name), {},
               {{Answer::Reload, tr("&Reload")}});
}
