// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldText.h"

#include "NodeOrigin.h"
#include "NumberForm.h"
#include "NumberParts.h"
#include "RotationNumbers.h"

#include <QCoreApplication>
#include <QStringList>

#include <Inventor/SbImage.h>
#include <Inventor/SoPath.h>
#include <Inventor/engines/SoEngine.h>
#include <Inventor/engines/SoEngineOutput.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoNode.h>

#include <cstring>

namespace
{
/// Lends a name to a function that Coin keeps for its own classes: what an object is called in files.
struct FileName : SoBase {
    static const char *of(const SoBase &object) { return (object.*&FileName::getFileFormatName)(); }
};

QString translated(const char *text)
{
    return QCoreApplication::translate("FieldText", text);
}

QString shortened(const QString &text, int limit)
{
    return text.size() <= limit ? text : text.left(limit - 1) + QChar(0x2026);
}

/// The start of a text that may be very long, converted no further than needed.
QString startOf(const SbString &text, int limit)
{
    const int bytes = qMin(text.getLength(), 4 * limit); // no character of UTF-8 is longer
    return QLatin1Char('"') + shortened(QString::fromUtf8(text.getString(), bytes), limit) + QLatin1Char('"');
}

QString describe(const SoBase *object)
{
    if (!object)
        return QStringLiteral("NULL");
    return FieldText::nodeName(*object);
}

QString describe(SbVec3s size, int components)
{
    const QString depth = size[2] ? QStringLiteral(" x %1").arg(size[2]) : QString();
    return translated("%1 x %2%3 pixels, %4 components").arg(size[0]).arg(size[1]).arg(depth).arg(components);
}

/// With as few digits as tell each number.
QString readable(const NumberParts::Numbers &numbers)
{
    QStringList words;
    for (const float number : numbers)
        words += NumberParts::shortest(number);
    return words.join(QLatin1Char(' '));
}

/// Coin writes more digits than tell a number.
QString readable(const SoField &field, const SbString &text)
{
    const QString notation = QString::fromUtf8(text.getString(), text.getLength());
    const NumberForm form = NumberForm::of(field);
    if (form.kind != NumberForm::Kind::Single && form.kind != NumberForm::Kind::Double)
        return notation;
    QStringList words = notation.simplified().split(QLatin1Char(' '));
    for (QString &word : words) {
        bool isNumber = false;
        const double number = word.toDouble(&isNumber);
        if (isNumber)
            word = form.written(number);
    }
    return words.join(QLatin1Char(' '));
}

QString notation(SoField &field, int limit)
{
    if (const NumberParts::Numbers numbers = NumberParts::of(field); !numbers.empty())
        return readable(numbers);
    SbString text;
    field.get(text);
    return shortened(readable(field, text), limit);
}

QString singleValue(SoField &field, int limit)
{
    if (field.isOfType(SoSFString::getClassTypeId()))
        return startOf(static_cast<SoSFString &>(field).getValue(), limit);
    if (field.isOfType(SoSFNode::getClassTypeId()))
        return describe(static_cast<SoSFNode &>(field).getValue());
    if (field.isOfType(SoSFPath::getClassTypeId()))
        return describe(static_cast<SoSFPath &>(field).getValue());
    if (field.isOfType(SoSFEngine::getClassTypeId()))
        return describe(static_cast<SoSFEngine &>(field).getValue());
    if (field.isOfType(SoSFImage::getClassTypeId())) {
        SbVec2s size;
        int components = 0;
        static_cast<SoSFImage &>(field).getValue(size, components);
        return describe(SbVec3s(size[0], size[1], 0), components);
    }
    if (field.isOfType(SoSFImage3::getClassTypeId())) {
        SbVec3s size;
        int components = 0;
        static_cast<SoSFImage3 &>(field).getValue(size, components);
        return describe(size, components);
    }
    return notation(field, limit);
}

QString valueAt(SoMField &field, int index, int limit)
{
    if (field.isOfType(SoMFString::getClassTypeId()))
        return startOf(static_cast<SoMFString &>(field)[index], limit);
    if (field.isOfType(SoMFNode::getClassTypeId()))
        return describe(static_cast<SoMFNode &>(field)[index]);
    if (field.isOfType(SoMFPath::getClassTypeId()))
        return describe(static_cast<SoMFPath &>(field)[index]);
    if (field.isOfType(SoMFEngine::getClassTypeId()))
        return describe(static_cast<SoMFEngine &>(field)[index]);
    if (field.isOfType(SoMFRotation::getClassTypeId())) {
        const auto numbers = RotationNumbers::of(static_cast<SoMFRotation &>(field)[index]);
        return readable({numbers.begin(), numbers.end()});
    }
    SbString text;
    field.get1(index, text);
    return readable(field, text);
}

QString multipleValue(SoMField &field, int limit)
{
    const int count = field.getNum();
    QStringList values;
    int length = 0;
    for (int i = 0; i < count && length < limit; ++i) {
        values += valueAt(field, i, limit);
        length += static_cast<int>(values.last().size()) + 2;
    }
    if (values.size() < count)
        values += QString(QChar(0x2026));
    const QString list = values.join(QStringLiteral(", "));
    return count == 1 ? list : QStringLiteral("(%1) %2").arg(count).arg(shortened(list, limit));
}

QString memberName(const SoBase *owner, const SbName &member)
{
    const QString name = QString::fromLatin1(member.getString());
    return owner ? FieldText::typeName(*owner) + QLatin1Char('.') + name : name;
}
} // namespace

QString FieldText::typeName(const SoBase &object)
{
    const char *const name = object.getTypeId().getName().getString();
    const bool isUnknown = std::strncmp(name, "Unknown", 7) == 0; // the classes that stand for what is not known
    return QString::fromLatin1(isUnknown ? FileName::of(object) : name);
}

QString FieldText::nodeName(const SoBase &object)
{
    const SbName name = object.getName();
    return name.getLength() ? typeName(object) + QLatin1Char(' ') + QString::fromLatin1(name.getString())
                            : typeName(object);
}

QString FieldText::qualifiedName(const SoField &field)
{
    const SoFieldContainer *const container = field.getContainer();
    SbName name;
    if (container)
        container->getFieldName(&field, name);
    return memberName(container, name);
}

QString FieldText::value(SoField &field, int limit)
{
    if (field.isOfType(SoMField::getClassTypeId()))
        return multipleValue(static_cast<SoMField &>(field), limit);
    return singleValue(field, limit);
}

QString FieldText::source(const SoField &field)
{
    SoEngineOutput *output = nullptr;
    if (field.isConnectedFromEngine() && field.getConnectedEngine(output)) {
        SbName name;
        if (output->getContainer())
            output->getContainer()->getOutputName(output, name);
        return memberName(output->getContainer(), name);
    }
    SoField *master = nullptr;
    return field.isConnectedFromField() && field.getConnectedField(master) ? qualifiedName(*master) : QString();
}

QString FieldText::obstacle(const SoField &field)
{
    if (field.isReadOnly())
        return translated("%1 cannot be edited: it is read-only.").arg(qualifiedName(field));
    if (field.isConnected() && field.isConnectionEnabled())
        return translated("%1 cannot be edited: its value comes from %2.").arg(qualifiedName(field), source(field));
    const QString obstacle = NodeOrigin::of(field.getContainer()).obstacle();
    return obstacle.isEmpty() ? obstacle : translated("%1 cannot be edited: %2.").arg(qualifiedName(field), obstacle);
}
