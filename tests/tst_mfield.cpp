// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "AllEditors.h"
#include "TestSupport.h"

#include <AccessButtonPrivate.h>

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCoordinate3.h>

namespace
{
using Manager = HbFieldEditorCommandManager;
using Make = HbMFieldWidget *(*)(Manager *);

/// One row of the contract; lists have bars between their items.
struct Kind {
    const char *name; ///< the editor's class and the field's type
    Make build;
    const char *values; ///< three in the field's notation; the last loses bits as text where it can
    const char *labels; ///< of the table's columns; empty for a table of one column
    const char *shown; ///< of the first value
    const char *fresh; ///< of a new value
    int col; ///< of the field, in which is typed
    const char *typed;
    const char *written; ///< what the cell shows then
    int reports; ///< when a person types it and presses Return

    QString widget() const { return QString(name).section(' ', 0, 0); }
    QString field() const { return QString(name).section(' ', 1); }
};

template <class Widget> HbMFieldWidget *made(Manager *manager)
{
    return new Widget("the type", manager, nullptr, nullptr, {});
}
constexpr Make fallback = made<HbMFDefaultFieldWidget>;

const Kind kinds[] = {
    {"HbMFVec2fWidget MFVec2f", made<HbMFVec2fWidget>, "0.1234567 1e-7|-3 4|1000.00006 2", "x|y", "0.123457|1e-07",
     "0|0", 1, "1.5", "1.5", 1},
    {"HbMFVec3fWidget MFVec3f", made<HbMFVec3fWidget>, "1 2 3|-3 4 5|1000.00006 2 3", "x|y|z", "1|2|3", "0|0|0", 2,
     "-1e30", "-1e+30", 1},
    {"HbMFVec4fWidget MFVec4f", made<HbMFVec4fWidget>, "1 2 3 4|-3 4 5 6|1000.00006 2 3 4", "x|y|z|w", "1|2|3|4",
     "0|0|0|0", 3, "1.5", "1.5", 1},
    {"HbMFVec2i32Widget MFVec2i32", made<HbMFVec2i32Widget>, "-2147483648 2147483647|1 2|3 4", "x|y",
     "-2147483648|2147483647", "0|0", 1, "7", "7", 0},
    {"HbMFVec2sWidget MFVec2s", made<HbMFVec2sWidget>, "-32768 32767|1 2|3 4", "x|y", "-32768|32767", "0|0", 0, "7",
     "7", 1},
    {"HbMFColorWidget MFColor", made<HbMFColorWidget>, "0.1234567 1 0|0.5 0.5 0.5|0.100000024 0 1", "Color|R|G|B",
     "0.123457|1|0", "0|0|0", 1, "0.75", "0.75", 1},
    {"HbMFPlaneWidget MFPlane", made<HbMFPlaneWidget>, "0 0 1 2|1 0 0 -3.5|0 1 0 1000.00006", "x|y|z|distance",
     "0|0|1|2", "0|0|1|0", 3, "5", "5", 1},
    {"HbMFRotationWidget MFRotation", made<HbMFRotationWidget>, "0 0 1 0|1 0 0 1|1 0 0 1.2345678", "x|y|z|radians",
     "0|0|0|1", "0|0|0|1", 0, "0", "0", 1},
    {"HbMFLineWidget MFVec3f", made<HbMFLineWidget>, "1 2 3|4 5 6|1000.00006 8 9", "", "1 2 3", "0 0 0", 0, "7 7 7",
     "7 7 7", 1},
    {"HbMFFloatWidget MFFloat", made<HbMFFloatWidget>, "0.5|-2.25|1000.00006", "", "0.5", "0", 0, "1.5", "1.5", 2},
    {"HbMFInt32Widget MFInt32", made<HbMFInt32Widget>, "-2147483648|5|6", "", "-2147483648", "0", 0, "-7", "-7", 2},
    {"HbMFShortWidget MFShort", made<HbMFShortWidget>, "-32768|5|6", "", "-32768", "0", 0, "32767", "32767", 2},
    {"HbMFUInt32Widget MFUInt32", made<HbMFUInt32Widget>, "4294967295|5|6", "", "0xffffffff", "0x0", 0, "4294967294",
     "0xfffffffe", 2},
    {"HbMFUShortWidget MFUShort", made<HbMFUShortWidget>, "65535|5|6", "", "0xffff", "0x0", 0, "65534", "0xfffe", 2},
    {"HbMFStringWidget MFString", made<HbMFStringWidget>, "\"a \\\"q\\\"\"|\"\"|\"z\"", "", "a \"q\"", "", 0,
     "x \"y\" é\\", "x \"y\" é\\", 1},
    {"HbMFDefaultFieldWidget MFString", fallback, "\"a \\\"q\\\"\"|\"\"|z\\", "", "\"a \\\"q\\\"\"", "\"\"", 0, "x",
     "\"x\"", 1},
    {"HbMFDefaultFieldWidget MFBool", fallback, "TRUE|TRUE|TRUE", "", "TRUE", "FALSE", 0, "FALSE", "FALSE", 1},
    {"HbMFDefaultFieldWidget MFName", fallback, "a|b|c", "", "\"a\"", "\"\"", 0, "d", "\"d\"", 1},
    {"HbMFDefaultFieldWidget MFVec3d", fallback, "1 2 3|4 5 6|7 8 9", "", "1 2 3", "0 0 0", 0, "7 7 7", "7 7 7", 1},
    {"HbMFDefaultFieldWidget MFNode", fallback, "Cone {}|Cube {}|Cone {}", "", "\nCone {\n\n}", "NULL", 0, "", "", 0},
    {"HbMFMatrixWidget MFMatrix", made<HbMFMatrixWidget>,
     "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16|1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1|1000.00006 2 3 4 5 6 7 8 9 10 11 12 13 "
     "14 15 16",
     "", "", "", 0, "", "", 0}};

QStringList split(const char *list)
{
    return QString::fromUtf8(list).split('|');
}

/// An editor with texts of its own.
template <class Widget> struct Own : Widget {
    Own() : Widget(nullptr, nullptr, nullptr, {}) { }
    QString getFieldValue(int row, int col) const override { return '!' + Widget::getFieldValue(row, col).left(9); }
};

std::unique_ptr<SoMField> makeField(const QString &type, const char *values = "")
{
    std::unique_ptr<SoMField> field(
        static_cast<SoMField *>(SoType::fromName(type.toLatin1().constData()).createInstance()));
    field->set(("[ " + split(values).join(" , ") + " ]").toUtf8().constData());
    return field;
}

/// An editor of the kind in the test's row, shown, with its field.
struct Editing {
    explicit Editing(Manager *manager = nullptr) : widget(kind.build(manager))
    {
        before->copyFrom(*field);
        present(*widget, field.get());
    }

    void click(const char *name) const { widget->findChild<QPushButton *>(name)->click(); }
    bool isIgnoreDown() const { return widget->findChild<QPushButton *>("m_ignoreButton")->isChecked(); }
    QStringList texts(int row) const
    {
        QStringList all;
        for (int col = 0; col < split(kind.fresh).size(); ++col)
            all << widget->getFieldValue(row, col);
        return all;
    }
    bool isFresh(int row) const
    {
        return field->isOfType(SoMFMatrix::getClassTypeId())
            ? static_cast<SoMFMatrix &>(*field)[row] == SbMatrix::identity()
            : texts(row) == split(kind.fresh);
    }
    /// Whether that value is the same, every bit of it.
    bool holdsAsBefore(int row, int rowBefore) const
    {
        const auto only = [](const SoMField &of, int wanted) {
            auto copy = makeField(QString(of.getTypeId().getName().getString()));
            copy->copyFrom(of);
            copy->deleteValues(wanted + 1);
            copy->deleteValues(0, wanted);
            return copy;
        };
        return only(*field, row)->isSame(*only(*before, rowBefore));
    }
    /// What a person does to change the last value.
    void type(bool commits = true) const
    {
        QLineEdit *const edit = openCell(table, 2, kind.col + (table->inherits("HbMFColorTable") ? 1 : 0));
        if (edit)
            retype(edit, QString::fromUtf8(kind.typed));
        if (edit && commits)
            QTest::keyClick(edit, Qt::Key_Return);
        QCoreApplication::processEvents(); // Qt closes the editor later
    }

    static const Kind &kindOfRow()
    {
        QFETCH(std::size_t, row);
        return kinds[row];
    }

    const Kind &kind = kindOfRow();
    std::unique_ptr<SoMField> field = makeField(kind.field(), kind.values);
    std::unique_ptr<SoMField> before = makeField(kind.field()); ///< a copy of the field as it was
    std::unique_ptr<HbMFieldWidget> widget;
    HbMFieldTable *table = widget->findChild<HbMFieldTable *>("m_table");
    QSpinBox *access = widget->findChild<QSpinBox *>("m_accessBox");
};

void addKinds()
{
    QTest::addColumn<std::size_t>("row");
    for (std::size_t row = 0; row < std::size(kinds); ++row)
        QTest::newRow(kinds[row].name) << row;
}
} // namespace

/// What all editors of many values have in common, on a desktop that writes a comma in its numbers.
class TestMField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void acceptsOnlyItsFields_data() { addKinds(); }
    void acceptsOnlyItsFields()
    {
        const Editing editing;
        const QString all = "HbMFLineWidget HbMFDefaultFieldWidget";
        for (const Kind &other : kinds) {
            const auto field = makeField(other.field());
            const bool isTaken = all.contains(editing.kind.widget()) || other.field() == editing.kind.field();
            QCOMPARE(editing.widget->setField(field.get()), isTaken);
            QCOMPARE(editing.widget->editedField(), isTaken ? field.get() : editing.field.get());
            QVERIFY(editing.widget->setField(editing.field.get())); // which lives longer
        }
        SoSFVec3f single;
        QVERIFY(!editing.widget->setField(&single) && !editing.widget->setField(nullptr));
    }

    void shows_data() { addKinds(); }
    void shows()
    {
        const Editing editing;
        const QStringList labels = split(editing.kind.labels);
        QCOMPARE(editing.widget->objectName(), editing.kind.widget());
        QCOMPARE(editing.widget->findChild<QLabel *>("m_label")->text(), "the type");
        for (const QObject *const part : editing.widget->findChildren<QObject *>())
            QVERIFY2(!part->objectName().isEmpty() || !part->inherits("QLineEdit"), part->metaObject()->className());
        QCOMPARE(editing.table->columnCount(), static_cast<int>(labels.size()));
        for (int col = 0; col < labels.size() && labels.size() > 1; ++col)
            QCOMPARE(editing.table->horizontalHeaderItem(col)->text(), labels[col]);
        if (*editing.kind.shown)
            QCOMPARE(editing.texts(0), split(editing.kind.shown));
        const int columns = static_cast<int>(editing.texts(0).size());
        for (const auto &[row, col] : {std::pair(-1, 0), {3, 0}, {INT_MAX, 0}, {INT_MIN, 0}, {0, -1}, {0, columns}}) {
            QCOMPARE(editing.widget->getFieldValue(row, col), QString());
            QCOMPARE(editing.widget->getCellText(row, col, 100), QString());
            if (col == 0)
                editing.widget->set1Value(row, col, editing.kind.typed);
            QVERIFY(editing.field->isSame(*editing.before));
        }
    }

    void writes_data() { addKinds(); }
    void writes()
    {
        if (!*Editing::kindOfRow().typed)
            return; // no text of one line
        const QString typed = QString::fromUtf8(Editing::kindOfRow().typed);
        const Editing told;
        told.widget->set1Value(2, told.kind.col, typed);
        const Editing alone;
        alone.type();
        RecordingManager manager;
        const Editing managed(&manager);
        managed.type();
        QStringList reports;
        const int count = told.kind.reports == 2 ? commitsOnReturn : told.kind.reports;
        for (int i = 0; i < count; ++i)
            reports << QStringLiteral("set1Value 2 %1 %2 null").arg(told.kind.col).arg(typed);
        QCOMPARE(manager.takeLog(), reports);
        QVERIFY(managed.field->isSame(*managed.before));
        QCOMPARE(told.widget->getFieldValue(2, told.kind.col), QString::fromUtf8(told.kind.written));
        QVERIFY(told.kind.reports ? told.texts(2) == alone.texts(2) : alone.field->isSame(*alone.before));
        for (const int row : {0, 1})
            QVERIFY(told.holdsAsBefore(row, row) && alone.holdsAsBefore(row, row));
    }

    void movesRows_data() { addKinds(); }
    void movesRows()
    {
        const Editing editing;
        Listener listener(*editing.field);
        for (const auto &[first, second] : {std::pair(0, 3), {5, 0}, {-1, 0}, {0, -1}, {INT_MIN, INT_MAX}, {1, 1}})
            editing.widget->swapRows(first, second);
        editing.table->setCurrentCell(0, 0);
        editing.click("m_upButton");
        QVERIFY(editing.field->isSame(*editing.before));
        QCOMPARE(listener.take(), 0);
        editing.click("m_downButton");
        QCOMPARE(listener.take(), 1);
        QCOMPARE(editing.table->currentRow(), 1);
        editing.widget->swapRows(1, 2);
        QCOMPARE(listener.take(), 1);
        QVERIFY(editing.holdsAsBefore(0, 1) && editing.holdsAsBefore(1, 2) && editing.holdsAsBefore(2, 0));
        if (auto *const nodes = dynamic_cast<SoMFNode *>(editing.field.get()))
            QCOMPARE((*nodes)[2]->getRefCount(), 2); // the field and its copy
    }

    void addsAndDeletes_data() { addKinds(); }
    void addsAndDeletes()
    {
        const Editing editing;
        Listener listener(*editing.field);
        const auto count = [&] {
            const int n = editing.table->rowCount();
            const bool agree = n == editing.field->getNum() && n == editing.access->maximum();
            return agree && editing.access->minimum() == (n > 0) ? n : -1;
        };
        editing.table->setCurrentCell(1, 0);
        editing.click("m_addButton");
        QCOMPARE(listener.take(), 1);
        QCOMPARE(count(), 4);
        QCOMPARE(editing.table->currentRow(), 1);
        QVERIFY(editing.isFresh(2));
        QVERIFY(editing.holdsAsBefore(0, 0) && editing.holdsAsBefore(1, 1) && editing.holdsAsBefore(3, 2));
        for (int left = 3; left >= 0; --left) {
            editing.table->setCurrentCell(0, 0);
            editing.click("m_deleteButton");
            QCOMPARE(listener.take(), 1);
            QCOMPARE(count(), left);
            QVERIFY(left == 0 || editing.holdsAsBefore(left - 1, 2));
        }
        for (const char *const name : {"m_deleteButton", "m_upButton", "m_downButton"})
            editing.click(name);
        QCOMPARE(listener.take(), 0);
        editing.click("m_addButton");
        QCOMPARE(count(), 1);
        QVERIFY(editing.isFresh(0));
        QCOMPARE(editing.table->currentRow(), -1);
    }

    void buttons_data() { addKinds(); }
    void buttons()
    {
        RecordingManager manager;
        const Editing managed(&manager);
        const Editing alone;
        for (const Editing *const editing : {&managed, &alone}) {
            editing->click("m_ignoreButton");
            editing->click("m_defaultButton");
            QVERIFY(editing->field->isSame(*editing->before));
        }
        QCOMPARE(manager.takeLog(), QStringList({"ignored 1", "default"}));
        QVERIFY(alone.field->isIgnored() && !managed.field->isIgnored());
        alone.widget->setRefresh(false);
        alone.field->setIgnored(FALSE);
        alone.field->setNum(1);
        alone.widget->refresh();
        QVERIFY(alone.table->rowCount() == 3 && alone.isIgnoreDown());
        alone.widget->setRefresh(true);
        alone.widget->refresh();
        QVERIFY(alone.table->rowCount() == 1 && !alone.isIgnoreDown());
    }

    void deaths_data() { addKinds(); }
    void deaths()
    {
        auto manager = std::make_unique<RecordingManager>();
        Editing editing(manager.get());
        manager.reset(); // from here on as if there never was one
        const auto useAll = [&editing] {
            editing.table->setCurrentCell(0, 0);
            for (const char *const name : {"m_addButton", "m_downButton", "m_deleteButton", "m_ignoreButton"})
                editing.click(name);
        };
        useAll();
        QVERIFY(editing.field->getNum() == 3 && editing.field->isIgnored());
        editing.field.reset();
        QVERIFY(editing.table->rowCount() == 0 && editing.access->maximum() == 0);
        useAll();

        RecordingManager listening;
        Editing told(&listening);
        told.type(false);
        told.field.reset();
        listening.takeLog();
        told.table->setNumRows(3); // as only a host would
        for (const char *const name : {"m_addButton", "m_upButton", "m_deleteButton", "m_defaultButton"})
            told.click(name);
        told.type();
        QCOMPARE(listening.takeLog(), QStringList()); // there is nothing to tell of
    }

    void pressedButtonReportsToNoDyingEditor()
    {
        RecordingManager manager;
        SoMFVec4f field;
        auto editor = std::make_unique<HbMFVec4fWidget>(&manager, nullptr, nullptr, Qt::WindowFlags());
        present(*editor, &field);
        auto *const ignore = editor->findChild<QPushButton *>("m_ignoreButton");
        ignore->setFocus();
        QTest::keyPress(ignore, Qt::Key_Space);
        editor.reset();
        QCOMPARE(manager.takeLog(), QStringList());
    }

    void cellsShowADerivedClassesTexts()
    {
        const auto shown = [](auto &&editor, const char *type, const char *values) {
            const auto field = makeField(type, values);
            editor.setField(field.get());
            return editor.getCellText(1, 0, 100);
        };
        const QByteArray longOne = "a|" + QByteArray(5000, 'b');
        for (const char *const values : {"a|b", longOne.constData()}) {
            QCOMPARE(shown(Own<HbMFStringWidget>(), "MFString", values).left(2), "!b");
            QCOMPARE(shown(Own<HbMFDefaultFieldWidget>(), "MFString", values).left(3), "!\"b");
        }
        QVERIFY(shown(Own<HbMFMatrixWidget>(), "MFMatrix", std::prev(std::end(kinds))->values).startsWith("!["));
    }

    void longTexts()
    {
        const QString piece = QString::fromUtf8("x\u00e9\u20ac\U0001F600"); // of one to four bytes
        const QString text = "a" + piece.repeated(500000);
        SoMFString field;
        field.set1Value(0, text.toUtf8().constData());
        HbMFStringWidget plain(nullptr, nullptr, nullptr, {});
        HbMFDefaultFieldWidget quoted(nullptr, nullptr, nullptr, {});
        plain.setField(&field);
        quoted.setField(&field);
        QVERIFY(plain.getFieldValue(0, 0) == text);
        QVERIFY(quoted.getFieldValue(0, 0) == '"' + text + '"');
        for (const int limit : {1, 50, 101, 102, 103, 104, 105}) {
            QCOMPARE(plain.getCellText(0, 0, limit).left(limit), text.left(limit));
            QCOMPARE(quoted.getCellText(0, 0, limit).left(limit), ('"' + text.left(limit)).left(limit));
        }
    }

    void oddComponents()
    {
        SoMFColor colors;
        colors.set1Value(0, 0.5f, 0.5f, 0.5f);
        HbMFColorWidget color(nullptr, nullptr, nullptr, {});
        color.setField(&colors);
        Listener listener(colors);
        for (const char *const refused : {"1.5", "-0.1", "nan", "inf"})
            color.set1Value(0, 0, refused);
        color.setValue(1, colors[0].getValue());
        QCOMPARE(listener.take(), 0);
        for (const char *const taken : {"0", "1"}) {
            color.set1Value(0, 0, taken);
            QCOMPARE(color.getFieldValue(0, 0), QLatin1String(taken));
        }
        SoMFRotation rotations;
        rotations.set1Value(0, SbRotation(SbVec3f(0, 1, 0), 1.0f));
        const SbRotation before = rotations[0];
        HbMFRotationWidget rotation(nullptr, nullptr, nullptr, {});
        rotation.setField(&rotations);
        rotation.set1Value(0, 3, "0.1"); // the last component is not edited
        QVERIFY(rotations[0].equals(before, 1e-6f));
        const Ref<SoCoordinate3> points;
        points->point.setNum(5);
        HbMFVec3fWidget point(nullptr, nullptr, nullptr, {});
        QVERIFY(point.setField(&points->point));
        point.setDefaultFieldValue();
        QCOMPARE(points->point.getNum(), 1);
    }
};

QTEST_MAIN(TestMField)
#include "tst_mfield.moc"
