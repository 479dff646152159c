// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldClipboard.h"

#include "CoinMessages.h"
#include "FieldLength.h"
#include "FieldSnapshot.h"
#include "FieldText.h"
#include "TextValue.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>

#include <Inventor/fields/SoFields.h>

namespace
{
/// The value itself, beside its text: the text may round it.
class FieldData : public QMimeData
{
    Q_OBJECT

public:
    explicit FieldData(SoField &field) : m_value(field), m_name(FieldText::qualifiedName(field))
    {
        if (!isLong(field))
            setText(TextValue::of(field));
    }

    const SoField &value() const { return m_value.value(); }
    const QString &name() const { return m_name; }

private:
    FieldSnapshot m_value;
    QString m_name;
};

QString sentence(const char *text)
{
    return QCoreApplication::translate("FieldClipboard", text);
}

/// The numbers of a choice mean other things in another class: choices go by their names.
bool isCopyable(const SoField &value, const SoField &target)
{
    return value.getTypeId() == target.getTypeId() && !target.isOfType(SoSFEnum::getClassTypeId())
        && !target.isOfType(SoMFEnum::getClassTypeId());
}

std::shared_ptr<SoField> copyOf(const SoField &field)
{
    const std::shared_ptr<SoField> copy(static_cast<SoField *>(field.getTypeId().createInstance()));
    copy->copyFrom(field);
    return copy;
}
} // namespace

void FieldClipboard::copy(SoField &field)
{
    QGuiApplication::clipboard()->setMimeData(new FieldData(field));
}

bool FieldClipboard::isEmpty()
{
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    return !data || !(data->hasText() || qobject_cast<const FieldData *>(data));
}

std::shared_ptr<SoField> FieldClipboard::valueFor(const SoField &target, QString *problem)
{
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    const auto *const field = qobject_cast<const FieldData *>(data);
    const QString name = FieldText::qualifiedName(target);
    if (field && isCopyable(field->value(), target))
        return copyOf(field->value());
    const std::shared_ptr<SoField> value = copyOf(target); // with the names of its choices
    const CoinMessages unheard; // the reason is told here
    if (data && data->hasText() && TextValue::set(*value, data->text()))
        return value;
    if (field)
        *problem = sentence("The value of %1 does not fit %2.").arg(field->name(), name);
    else
        *problem = sentence("The text on the clipboard is no value of %1.").arg(name);
    return nullptr;
}

#include "FieldClipboard.moc"
