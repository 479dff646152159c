// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TranslatedTexts.h"

#include <QEvent>
#include <QVariant>
#include <QWidget>

#include <algorithm>

TranslatedTexts::TranslatedTexts(QWidget *widget) : QObject(widget)
{
    widget->installEventFilter(this);
}

void TranslatedTexts::show(Property &property)
{
    property.shown = property.text();
    property.target->setProperty(property.name, property.shown);
}

void TranslatedTexts::set(QObject *target, const char *property, const Text &text)
{
    const auto isSame
        = [&](const Property &other) { return other.target == target && qstrcmp(other.name, property) == 0; };
    m_properties.erase(std::remove_if(m_properties.begin(), m_properties.end(), isSame), m_properties.end());
    m_properties.push_back({target, property, text, {}});
    show(m_properties.back());
}

void TranslatedTexts::explain(QWidget *target, const Text &text)
{
    set(target, "toolTip", text);
    set(target, "accessibleName", text);
}

void TranslatedTexts::call(const std::function<void()> &setTexts)
{
    m_calls.push_back(setTexts);
    setTexts();
}

bool TranslatedTexts::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != parent() || event->type() != QEvent::LanguageChange)
        return false;
    for (Property &property : m_properties)
        if (property.target && property.target->property(property.name).toString() == property.shown)
            show(property);
    for (const std::function<void()> &setTexts : m_calls)
        setTexts();
    return false;
}
