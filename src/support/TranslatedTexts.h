// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TRANSLATEDTEXTS_H
#define TRANSLATEDTEXTS_H

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

class QWidget;

/// The translated texts of a widget and of what is in it, set anew whenever the language changes.
class TranslatedTexts : public QObject
{
public:
    using Text = std::function<QString()>;

    /// @p widget owns this, and hears of the language.
    explicit TranslatedTexts(QWidget *widget);

    /// Sets a property now, and later as long as nobody else has set it. Replaces what was to be set there.
    void set(QObject *target, const char *property, const Text &text);
    /// Sets the tool tip and what screen readers tell.
    void explain(QWidget *target, const Text &text);
    /// Calls what sets other texts, now and later.
    void call(const std::function<void()> &setTexts);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Property {
        QPointer<QObject> target;
        const char *name;
        Text text;
        QString shown;
    };
    static void show(Property &property);

    std::vector<Property> m_properties;
    std::vector<std::function<void()>> m_calls;
};

#endif
