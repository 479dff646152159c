// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorKinds.h"

#include "AllEditors.h"
#include "TestSupport.h"

#include <HbRangeComponent.h>

#include <QRandomGenerator>

#include <Inventor/fields/SoFields.h>

#include <cmath>

namespace
{
using Manager = HbFieldEditorCommandManager;

const SbName enumNames[] = {"A", "B", "C"};

template <class Widget> HbSFieldWidget *build(Manager *manager)
{
    if constexpr (std::is_same_v<Widget, HbSFEnumWidget>)
        return new Widget("label", manager, 3, enumNames, nullptr, nullptr, {});
    else if constexpr (std::is_same_v<Widget, HbSFFloatWidget>)
        return new Widget("label", HbRangeComponent(0.0f, 10.0f, false), manager, nullptr, nullptr, {});
    else if constexpr (std::is_constructible_v<Widget, HbRangeComponent, Manager *, QWidget *, char *, Qt::WindowFlags>)
        return new Widget("label", HbRangeComponent(0, 100, false), manager, nullptr, nullptr, {});
    else
        return new Widget("label", manager, nullptr, nullptr, {});
}

template <class Widget> EditorKind kind(const char *fieldType, decltype(EditorKind::change) change,
                                        const QStringList &values, const QString &typed, const QString &written)
{
    const bool isLine = std::is_same_v<Widget, HbSFLineWidget>;
    const QByteArray name = isLine ? QByteArray("HbSFLineWidget") : "Hb" + QByteArray(fieldType) + "Widget";
    return {name, fieldType, build<Widget>, change, values, typed, written};
}

/// Return would have the spin box tell its value once more.
void typeAndLeave(HbSFieldWidget &editor, const QString &text)
{
    auto *const edit = editor.findChild<QLineEdit *>();
    retype(edit, text);
    edit->clearFocus();
}

void typeInto(QLineEdit *edit, const QString &text)
{
    enter(edit, text);
    edit->clearFocus();
}

void typeIntoFirst(HbSFieldWidget &editor, const QString &text)
{
    typeInto(editor.findChild<QLineEdit *>(), text);
}

void typeIntoPopup(HbSFieldWidget &editor, const QString &text)
{
    auto *const edit = editor.findChild<QLineEdit *>(QStringLiteral("popupEdit_0_0"));
    if (!edit->isVisible())
        editor.findChild<QPushButton *>(QStringLiteral("m_editButton"))->click();
    typeInto(edit, text);
}

void tick(HbSFieldWidget &editor, const QString &)
{
    editor.findChild<QCheckBox *>(QStringLiteral("m_box"))->click();
}

void chooseNext(HbSFieldWidget &editor, const QString &)
{
    QTest::keyClick(editor.findChild<QComboBox *>(), Qt::Key_Down);
}

const QString extremes = QStringLiteral("3.40282e+38 -1.17549e-38 0.0123457 -1234570");
const QString strange = QStringLiteral("nan inf -inf -0");

QString first(const QString &numbers, int count)
{
    return numbers.section(QLatin1Char(' '), 0, count - 1);
}

/// The floats of a text, NaN and infinities among them; none where a word is no number.
std::vector<float> floats(const QString &text)
{
    std::vector<float> numbers;
    bool converted = true;
    for (const QString &word : text.simplified().split(QLatin1Char(' '))) {
        numbers.push_back(word.toFloat(&converted));
        if (!converted)
            return {};
    }
    return numbers;
}

template <class Field, class Value> bool setIfOfType(SoField &field, const Value &value)
{
    if (!field.isOfType(Field::getClassTypeId()))
        return false;
    static_cast<Field &>(field).setValue(value);
    return true;
}

QString randomText(QRandomGenerator &random)
{
    const QString alphabet = QStringLiteral("ab Z09\"\"\\\\\n\t'#{}[],.\u00e4\u00df\u20ac\u65e5");
    QString text;
    for (int i = random.bounded(24); i > 0; --i) {
        const int place = random.bounded(static_cast<int>(alphabet.size()) + 1);
        text += place < alphabet.size() ? QString(alphabet.at(place)) : QStringLiteral("\U0001F6A2");
    }
    return text;
}

/// Of any magnitude a float has with all its digits.
QString randomFloat(QRandomGenerator &random)
{
    for (;;) {
        const quint32 bits = random.generate();
        float number;
        memcpy(&number, &bits, sizeof number);
        if (std::isnormal(number))
            return QString::number(static_cast<double>(number), 'g', 9);
    }
}

/// Null for a type whose numbers are real.
const std::pair<qint64, qint64> *integerRange(const SoField &field)
{
    static const std::pair<QRegularExpression, std::pair<qint64, qint64>> ranges[]
        = {{QRegularExpression("(UShort|us)$"), {0, 0xffff}},
           {QRegularExpression("(UInt32|ULong|ui32)$"), {0, 0xffffffff}},
           {QRegularExpression("(Short|s)$"), {-0x8000, 0x7fff}},
           {QRegularExpression("ub$"), {0, 0xff}},
           {QRegularExpression("(Vec.b)$"), {-0x80, 0x7f}},
           {QRegularExpression("((Int|i)32|Long)$"), {-0x80000000LL, 0x7fffffff}}};
    const QString type = QString::fromLatin1(field.getTypeId().getName().getString());
    for (const auto &[pattern, range] : ranges)
        if (pattern.match(type).hasMatch())
            return &range;
    return nullptr;
}

/// As many numbers as the field has.
QString randomNumbers(SoField &field, QRandomGenerator &random)
{
    const auto *const range = integerRange(field);
    QStringList numbers;
    for (auto i = textOf(field).count(QLatin1Char(' ')); i >= 0; --i) {
        if (range)
            numbers << QString::number(range->first
                                       + qint64(random.generate64() % quint64(range->second - range->first + 1)));
        else
            numbers << randomFloat(random);
    }
    return numbers.join(QLatin1Char(' '));
}

SbRotation rotation(const std::vector<float> &numbers)
{
    return {SbVec3f(numbers[0], numbers[1], numbers[2]), numbers[3]};
}
} // namespace

const std::vector<EditorKind> &editorKinds()
{
    static const std::vector<EditorKind> kinds = {
        kind<HbSFFloatWidget>("SFFloat", typeIntoFirst,
                              {"0", "-5", "250", "3.40282e+38", "-1.17549e-38", "nan", "inf", "-inf"}, "2.5", "2.5"),
        kind<HbSFInt32Widget>("SFInt32", typeIntoFirst, {"0", "-12", "2147483647", "-2147483648"}, "-7", "-7"),
        kind<HbSFShortWidget>("SFShort", typeIntoFirst, {"0", "32767", "-32768"}, "123", "123"),
        kind<HbSFUInt32Widget>("SFUInt32", typeIntoFirst, {"0x10", "0xffffffff", "0"}, "ff", "0xff"),
        kind<HbSFUShortWidget>("SFUShort", typeIntoFirst, {"0x10", "0xffff", "0"}, "2a", "0x2a"),
        kind<HbSFBoolWidget>("SFBool", tick, {"TRUE", "FALSE"}, "", "TRUE"),
        kind<HbSFEnumWidget>("SFEnum", chooseNext, {"C", "B", "A"}, "", "B"),
        kind<HbSFStringWidget>(
            "SFString", typeIntoFirst,
            {R"("one")", R"("say \"x\"")", QStringLiteral("\"%1\"").arg(QString(40000, 'x')), R"("")"},
            QStringLiteral("\u00e4 \"q\" \u20ac"), QStringLiteral("\"\u00e4 \\\"q\\\" \u20ac\"")),
        kind<HbSFNameWidget>("SFName", typeIntoFirst, {R"("one")", R"("two words")", R"("")"}, "a b", R"("a")"),
        kind<HbSFVec2sWidget>("SFVec2s", typeAndLeave, {"1 2", "32767 -32768", "-32768 32767", "30 40"}, "7", "7 40"),
        kind<HbSFVec2fWidget>("SFVec2f", typeIntoFirst, {"1 2", first(extremes, 2), first(strange, 2), "3 4"}, "2.5",
                              "2.5 4"),
        kind<HbSFVec3fWidget>("SFVec3f", typeIntoFirst, {"1 2 3", first(extremes, 3), first(strange, 3), "4 5 6"},
                              "2.5", "2.5 5 6"),
        kind<HbSFVec4fWidget>("SFVec4f", typeIntoFirst, {"1 2 3 4", extremes, strange, "4 5 6 7"}, "2.5", "2.5 5 6 7"),
        kind<HbSFRotationWidget>("SFRotation", typeIntoFirst, {"0 1 0 0.5", "0 0 1 1.5708", "1 0 0 3", "0 0 1 0.5"},
                                 "1", "0.707107 0 0.707107 0.5"),
        kind<HbSFPlaneWidget>("SFPlane", typeIntoFirst,
                              {"0 1 0 2.5", "1 0 0 3.40282e+38", "0 -1 0 -1.17549e-38", "0 0 1 -5"}, "1",
                              "0.707107 0 0.707107 -5"),
        kind<HbSFColorWidget>("SFColor", typeIntoFirst,
                              {"1 0.5 0", first(extremes, 3), first(strange, 3), "0.1 0.2 0.3"}, "2.5", "2.5 0.2 0.3"),
        kind<HbSFLineWidget>("SFVec3f", typeIntoFirst, {"1 2 3", "3.4028235e+38 -1.1754944e-38 0.0123456789", "4 5 6"},
                             "7 8 9", "7 8 9"),
        kind<HbSFMatrixWidget>("SFMatrix", typeIntoPopup,
                               {"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16",
                                QStringList({extremes, extremes, strange, strange}).join(' '),
                                "1 0 0 0 0 1 0 0 0 0 1 0 5 6 7 1"},
                               "2.5", "2.5 0 0 0 0 1 0 0 0 0 1 0 5 6 7 1"),
        kind<HbSFBox3sWidget>("SFBox3s", typeIntoPopup,
                              {"1 2 3 4 5 6", "32767 32767 32767 -32768 -32768 -32768", "-1 -2 -3 4 5 6"}, "10",
                              "10 -2 -3 4 5 6"),
    };
    return kinds;
}

std::unique_ptr<SoField> makeField(const char *type, const char *value)
{
    std::unique_ptr<SoField> field(static_cast<SoField *>(SoType::fromName(type).createInstance()));
    if (field->isOfType(SoSFEnum::getClassTypeId())) {
        const int values[] = {0, 1, 2};
        static_cast<SoSFEnum &>(*field).setEnums(3, values, enumNames);
    }
    if (value)
        setText(*field, QString::fromUtf8(value));
    return field;
}

QString textOf(SoField &field)
{
    SbString text;
    field.get(text);
    const QString notation = QString::fromUtf8(text.getString());
    return notation.contains(QLatin1Char('"')) ? notation : notation.simplified();
}

void setText(SoField &field, const QString &text)
{
    if (!text.contains(QLatin1String("nan")) && !text.contains(QLatin1String("inf"))) {
        field.set(text.toUtf8().constData());
        return;
    }
    const std::vector<float> numbers = floats(text);
    setIfOfType<SoSFFloat>(field, numbers[0]);
    setIfOfType<SoSFVec2f>(field, numbers.data());
    setIfOfType<SoSFVec3f>(field, numbers.data());
    setIfOfType<SoSFVec4f>(field, numbers.data());
    setIfOfType<SoSFColor>(field, numbers.data());
    if (numbers.size() == 16)
        setIfOfType<SoSFMatrix>(field, SbMatrix(reinterpret_cast<const SbMat *>(numbers.data())));
}

void setRandomValue(SoField &field, QRandomGenerator &random)
{
    const auto number = [&random](double size) { return static_cast<float>((2 * random.generateDouble() - 1) * size); };
    const auto axis = [&number] { return SbVec3f(number(1), number(1), number(1)); };
    // the parser of names takes a quote before a newline for the end
    const bool hasValue = setIfOfType<SoSFString>(field, randomText(random).toUtf8().constData())
        || setIfOfType<SoSFName>(field, randomText(random).remove(QLatin1Char('\n')).toUtf8().constData())
        || setIfOfType<SoSFEnum>(field, random.bounded(3)) || setIfOfType<SoSFBool>(field, random.bounded(2))
        || setIfOfType<SoSFRotation>(field, SbRotation(axis(), number(6.28)))
        || setIfOfType<SoSFPlane>(field, SbPlane(axis(), number(1e6)));
    if (!hasValue)
        setText(field, randomNumbers(field, random));
}

bool isSameOnDisplay(const SoField &field, const QString &first, const QString &second)
{
    if (first == second)
        return true;
    const std::vector<float> a = floats(first);
    const std::vector<float> b = floats(second);
    if (a.empty() || a.size() != b.size() || integerRange(field))
        return false;
    if (field.isOfType(SoSFRotation::getClassTypeId())) {
        SbRotation turned = rotation(b); // one rotation has two quaternions
        turned *= -1.0f;
        return rotation(a).equals(rotation(b), 1e-5f) || rotation(a).equals(turned, 1e-5f);
    }
    constexpr float sixDigits = 5.01e-6f;
    const float rest = field.isOfType(SoSFPlane::getClassTypeId()) ? 3e-6f : 0.0f; // the normal is normalised again
    return std::equal(a.begin(), a.end(), b.begin(), [rest](float x, float y) {
        return std::abs(x - y) <= sixDigits * std::abs(x) + rest || (std::isnan(x) && std::isnan(y)) || x == y;
    });
}
