// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

// One editor at a time in the hands of somebody who types, clicks and drags at random, in hosts of every kind.

#include "AllEditors.h"
#include "EditorKinds.h"
#include "Hands.h"
#include "Monkey.h"
#include "TestSupport.h"

#include <HbRangeComponent.h>

#include <QStyleFactory>

#include <Inventor/SoInteraction.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/fields/SoSField.h>
#include <Inventor/nodes/SoNode.h>

namespace
{
using Command = HbFieldEditorCommandManager;

struct Kind {
    const char *field; ///< as in "SFFloat Cone.height": its type and, unless it stands alone, its node
    HbFieldEditors *(*make)(SoField &field, bool labelled, Command *manager, QWidget *parent);
};

const SbName enumNames[] = {"A", "B", "C"};

template <class Widget> HbFieldEditors *made(SoField &field, bool labelled, Command *manager, QWidget *parent)
{
    const HbRangeComponent range = [] {
        HbRangeComponent both(0, 100, false);
        both.setfRange(0.0F, 10.0F);
        return both;
    }();
    if constexpr (std::is_same_v<Widget, HbSFBitMaskWidget>)
        return labelled ? new Widget(&field, "label", manager, parent, nullptr, {})
                        : new Widget(&field, manager, parent, nullptr, {});
    else if constexpr (std::is_same_v<Widget, HbSFEnumWidget>)
        return new Widget("label", manager, 3, enumNames, parent, nullptr, {});
    else if constexpr (std::is_same_v<Widget, HbSFFloatWidget> || std::is_same_v<Widget, HbMFFloatWidget>)
        return new Widget("label", range, manager, parent, nullptr, {});
    else if constexpr (std::is_constructible_v<Widget, HbRangeComponent, Command *, QWidget *, char *, Qt::WindowFlags>)
        return labelled ? new Widget("label", range, manager, parent, nullptr, {})
                        : new Widget(range, manager, parent, nullptr, {});
    else
        return labelled ? new Widget("label", manager, parent, nullptr, {}) : new Widget(manager, parent, nullptr, {});
}

const Kind kinds[] = {
    {"SFBool SpotLight.on", made<HbSFBoolWidget>},
    {"SFBox3s", made<HbSFBox3sWidget>},
    {"SFColor Environment.fogColor", made<HbSFColorWidget>},
    {"SFFloat Cone.height", made<HbSFFloatWidget>},
    {"SFInt32 Switch.whichChild", made<HbSFInt32Widget>},
    {"SFMatrix MatrixTransform.matrix", made<HbSFMatrixWidget>},
    {"SFName Font.name", made<HbSFNameWidget>},
    {"SFPlane ClipPlane.plane", made<HbSFPlaneWidget>},
    {"SFRotation Transform.rotation", made<HbSFRotationWidget>},
    {"SFShort", made<HbSFShortWidget>},
    {"SFString WWWAnchor.description", made<HbSFStringWidget>},
    {"SFUInt32", made<HbSFUInt32Widget>},
    {"SFUShort DrawStyle.linePattern", made<HbSFUShortWidget>},
    {"SFVec2f Texture2Transform.center", made<HbSFVec2fWidget>},
    {"SFVec2i32", made<HbSFVec2i32Widget>},
    {"SFVec2s", made<HbSFVec2sWidget>},
    {"SFVec3f Transform.center", made<HbSFVec3fWidget>},
    {"SFVec4f", made<HbSFVec4fWidget>},
    {"SFImage Texture2.image", made<HbSFImageWidget>},
    {"SFEnum", made<HbSFEnumWidget>},
    {"SFBitMask Cylinder.parts", made<HbSFBitMaskWidget>},
    {"SFVec3d", made<HbSFLineWidget>},
    {"MFColor Material.diffuseColor", made<HbMFColorWidget>},
    {"MFBool", made<HbMFDefaultFieldWidget>},
    {"MFFloat Material.shininess", made<HbMFFloatWidget>},
    {"MFInt32 IndexedFaceSet.coordIndex", made<HbMFInt32Widget>},
    {"MFVec3f Normal.vector", made<HbMFLineWidget>},
    {"MFMatrix", made<HbMFMatrixWidget>},
    {"MFPlane", made<HbMFPlaneWidget>},
    {"MFRotation", made<HbMFRotationWidget>},
    {"MFShort", made<HbMFShortWidget>},
    {"MFString Text2.string", made<HbMFStringWidget>},
    {"MFUInt32 PackedColor.orderedRGBA", made<HbMFUInt32Widget>},
    {"MFUShort", made<HbMFUShortWidget>},
    {"MFVec2f TextureCoordinate2.point", made<HbMFVec2fWidget>},
    {"MFVec2i32", made<HbMFVec2i32Widget>},
    {"MFVec2s", made<HbMFVec2sWidget>},
    {"MFVec3f Coordinate3.point", made<HbMFVec3fWidget>},
    {"MFVec4f Coordinate4.point", made<HbMFVec4fWidget>},
};

/// What a host does when it is told of an edit.
enum class Host { None, Writes, Ignores, EndsEditor, EndsField };

/// Coin tells of what it cannot read; that is all it may say.
constexpr char readErrors[] = "(?i)read error|couldn't read|invalid|unable to|not (a )?valid|illegal|unknown|expected|"
                              "premature|Coin|normalis|normaliz|zero|magnitude";

class LibraryWorld : public MonkeyWorld
{
public:
    explicit LibraryWorld(quint32 seed) : m_random(seed)
    {
        Complaints::take();
        Complaints::expect(readErrors);
        m_kind = &kinds[m_random.bounded(int(std::size(kinds)))];
        m_host = Host(m_random.bounded(5));
        makeField();
        if (m_random.bounded(2))
            m_parent = std::make_unique<QWidget>();
        if (m_host != Host::None) {
            m_manager = std::make_unique<RecordingManager>();
            m_manager->onCommit = m_manager->onTableCommand = [this] { answer(); };
        }
        m_editor = m_kind->make(*m_field, m_random.bounded(2), m_manager.get(), m_parent.get());
        m_editor->setField(m_field);
        m_editor->refresh();
        QWidget *const window = m_editor->window();
        window->resize(100 + m_random.bounded(500), 60 + m_random.bounded(400));
        m_editor->show();
        window->show();
        QApplication::setActiveWindow(window);
    }

    ~LibraryWorld() override
    {
        if (!m_parent)
            delete m_editor;
        m_parent.reset();
        endField();
    }

    QString step(QRandomGenerator &random) override
    {
        if (!m_editor)
            return {};
        static const std::pair<int, QString (LibraryWorld::*)(QRandomGenerator &)> deeds[] = {
            {26, &LibraryWorld::play}, {3, &LibraryWorld::changeField},        {2, &LibraryWorld::refresh},
            {2, &LibraryWorld::call},  {1, &LibraryWorld::changeSurroundings}, {1, &LibraryWorld::end},
        };
        int choice = random.bounded(35);
        for (const auto &[weight, deed] : deeds) {
            choice -= weight;
            if (choice >= 0)
                continue;
            const QString done = (this->*deed)(random);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
            return QString::fromLatin1(m_kind->field) + QStringLiteral(": ") + done;
        }
        return {};
    }

    QString fault() override
    {
        const QByteArray complaints = Complaints::take();
        Complaints::expect(readErrors);
        if (!complaints.isEmpty())
            return QString::fromUtf8(complaints);
        return m_field ? illegal() : QString();
    }

    /// An editor that was refreshed shows what a new one shows.
    QString lastFault() override
    {
        if (!m_editor || !m_field || m_host == Host::EndsEditor || m_host == Host::EndsField || isOdd())
            return {};
        m_editor->setRefresh(true);
        m_editor->setField(m_field);
        m_editor->refresh();
        const std::unique_ptr<HbFieldEditors> fresh(m_kind->make(*m_field, true, nullptr, nullptr));
        fresh->setField(m_field);
        fresh->refresh();
        const QStringList old = shown(*m_editor);
        const QStringList anew = shown(*fresh);
        return old == anew
            ? fault()
            : QStringLiteral("shows %1 and not %2").arg(old.join('|').left(300), anew.join('|').left(300));
    }

private:
    /// Stated so: names once taken over stay, bits are not followed, a base once found stays.
    bool isOdd() const
    {
        for (const char *const odd : {"SFEnum", "SFBitMask", "SFUShort", "SFUInt32", "SFInt32", "SFShort", "SFVec2i32"})
            if (QByteArray(m_kind->field).startsWith(odd))
                return true;
        return false;
    }

    void makeField()
    {
        const QByteArray type = QByteArray(m_kind->field).split(' ').first();
        const QByteArray place = QByteArray(m_kind->field).mid(type.size() + 1);
        if (place.isEmpty() || m_random.bounded(3) == 0) {
            m_owned = ::makeField(type.constData());
            if (m_owned->isOfType(SoSFBitMask::getClassTypeId())) {
                const int values[] = {1, 2, 3};
                static_cast<SoSFEnum &>(*m_owned).setEnums(3, values, enumNames);
            }
            m_field = m_owned.get();
            if (m_owned->isOfType(SoSFEnum::getClassTypeId()))
                static_cast<SoSFEnum &>(*m_owned).setValue(1);
            else if (m_owned->isOfType(SoSField::getClassTypeId()) && !m_owned->isOfType(SoSFImage::getClassTypeId()))
                setRandomValue(*m_owned, m_random);
            return;
        }
        m_node = static_cast<SoNode *>(SoType::fromName(place.split('.').first().constData()).createInstance());
        m_node->ref();
        Q_ASSERT(m_node);
        m_field = m_node->getField(place.split('.').last().constData());
    }

    void endField()
    {
        m_field = nullptr;
        m_owned.reset();
        if (SoNode *const node = std::exchange(m_node, nullptr))
            node->unref();
    }

    void answer()
    {
        if (m_host == Host::EndsEditor && m_editor)
            m_editor->deleteLater();
        if (m_host == Host::EndsField)
            endField();
        if (m_host != Host::Writes || !m_editor)
            return;
        if (m_manager->log.last().startsWith(QLatin1String("sfield")))
            m_editor->applyChanges();
        m_editor->refresh();
    }

    /// Each of its values can be read back from its text.
    QString illegal() const
    {
        if (m_field->isOfType(SoSFEnum::getClassTypeId()) && !m_field->isOfType(SoSFBitMask::getClassTypeId())) {
            const int value = static_cast<SoSFEnum *>(m_field)->getValue();
            return value >= 0 && value <= 2 ? QString() : QStringLiteral("the value %1").arg(value);
        }
        if (m_field->isOfType(SoMField::getClassTypeId()) && static_cast<SoMField *>(m_field)->getNum() > 100000)
            return QStringLiteral("has grown to %1 values").arg(static_cast<SoMField *>(m_field)->getNum());
        return {};
    }

    static QStringList shown(const HbFieldEditors &editor)
    {
        QStringList all;
        for (const auto *edit : editor.findChildren<QLineEdit *>())
            if (!edit->parent()->inherits("QSpinBox") && edit->objectName() != QLatin1String("qt_lineeditor"))
                all << edit->text();
        for (const auto *box : editor.findChildren<QCheckBox *>())
            if (box->objectName() != QLatin1String("notifyBox"))
                all << QString::number(box->isChecked());
        for (const auto *table : editor.findChildren<QTableWidget *>())
            all = QStringList(QString::number(table->rowCount())); // a cell may be open in the other
        return all;
    }

    QString play(QRandomGenerator &random) { return Hands(m_editor, random).doAnything(); }

    QString changeField(QRandomGenerator &random)
    {
        if (!m_field)
            return QStringLiteral("has no field");
        if (auto *const values = qobject_field<SoMField>()) {
            const int count = random.bounded(4);
            if (random.bounded(2) && values->getNum() > 0)
                values->deleteValues(random.bounded(values->getNum()), 1);
            else
                values->insertSpace(random.bounded(values->getNum() + 1), count);
        } else if (!m_field->isOfType(SoSFImage::getClassTypeId())
                   && !m_field->isOfType(SoSFBitMask::getClassTypeId())) {
            setRandomValue(*m_field, random);
        }
        return QStringLiteral("changes the field");
    }

    template <class Field> Field *qobject_field() const
    {
        return m_field->isOfType(Field::getClassTypeId()) ? static_cast<Field *>(m_field) : nullptr;
    }

    QString refresh(QRandomGenerator &random)
    {
        m_editor->setRefresh(random.bounded(4) != 0);
        m_editor->refresh();
        return QStringLiteral("refreshes");
    }

    QString call(QRandomGenerator &random)
    {
        const int row = random.bounded(6) - 1;
        const int col = random.bounded(6) - 1;
        const QString text = Hands::someText(random);
        switch (random.bounded(4)) {
        case 0:
            m_editor->applyChanges();
            return QStringLiteral("applies");
        case 1:
            m_editor->swapRows(row, col);
            return QStringLiteral("swaps rows %1 %2").arg(row).arg(col);
        case 2:
            m_editor->set1Value(row, col, text);
            return QStringLiteral("sets %1 %2 to %3").arg(row).arg(col).arg(text);
        default:
            m_editor->swapColumns(row, col);
            return QStringLiteral("swaps columns");
        }
    }

    QString changeSurroundings(QRandomGenerator &random)
    {
        switch (random.bounded(4)) {
        case 0:
            QLocale::setDefault(random.bounded(2) ? QLocale(QLocale::German) : QLocale(QLocale::Arabic));
            return QStringLiteral("changes the locale");
        case 1: {
            QFont font = m_editor->font();
            font.setPointSize(6 + random.bounded(16));
            m_editor->setFont(font);
            return QStringLiteral("changes the font");
        }
        case 2:
            m_editor->window()->resize(20 + random.bounded(600), 20 + random.bounded(600));
            return QStringLiteral("resizes");
        default:
            m_editor->setVisible(random.bounded(3) != 0);
            return QStringLiteral("hides or shows");
        }
    }

    QString end(QRandomGenerator &random)
    {
        if (random.bounded(3))
            return QStringLiteral("waits");
        switch (random.bounded(5)) {
        case 0:
            m_editor->setField(nullptr);
            return QStringLiteral("takes the field away");
        case 1:
            if (m_field)
                m_editor->setField(m_field);
            return QStringLiteral("sets the field again");
        case 2:
            if (!QByteArray(m_kind->field).startsWith("SFBitMask"))
                endField();
            return QStringLiteral("ends the field");
        case 3:
            m_manager.reset();
            return QStringLiteral("ends the manager");
        default:
            delete m_editor.data();
            return QStringLiteral("ends the editor");
        }
    }

    QRandomGenerator m_random;
    const Kind *m_kind;
    Host m_host;
    std::unique_ptr<SoField> m_owned;
    SoNode *m_node = nullptr;
    SoField *m_field = nullptr;
    std::unique_ptr<QWidget> m_parent;
    std::unique_ptr<RecordingManager> m_manager;
    QPointer<HbFieldEditors> m_editor;
};
} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Complaints::listen();
    SoInteraction::init();
    int count = 0;
    QTimer closing; // whatever dialog opens
    QObject::connect(&closing, &QTimer::timeout, [&count] {
        if (auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->done(++count % 2);
    });
    closing.start(1);
    return runMonkey(QCoreApplication::arguments(),
                     {200, 60, [](quint32 seed) { return std::make_unique<LibraryWorld>(seed); }});
}
