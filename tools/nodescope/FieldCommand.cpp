// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldCommand.h"

#include "CoinRef.h"
#include "FieldText.h"
#include "NumberParts.h"
#include "KeptImages.h"

#include <QCoreApplication>

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFImage.h>
#include <Inventor/fields/SoSFImage3.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/lists/SoFieldList.h>

#include <algorithm>
#include <utility>

std::vector<FieldState> imagesBeside(const SoField &field)
{
    std::vector<FieldState> images;
    if (!field.isOfType(SoSFString::getClassTypeId()) && !field.isOfType(SoMFString::getClassTypeId()))
        return images;
    SoFieldList all;
    const int count = field.getContainer() ? field.getContainer()->getFields(all) : 0;
    for (int i = 0; i < count; ++i) {
        const bool isImage
            = all[i]->isOfType(SoSFImage::getClassTypeId()) || all[i]->isOfType(SoSFImage3::getClassTypeId());
        if (isImage && all[i] != &field)
            images.push_back({all[i], FieldSnapshot(*all[i])});
    }
    return images;
}

namespace
{
/// Of a matrix the first number that differs, with its place; empty where the whole value can be read.
QString firstChange(const FieldSnapshot &before, const FieldSnapshot &after)
{
    constexpr std::size_t matrixSize = 16;
    constexpr std::ptrdiff_t columns = 4;
    const NumberParts::Numbers old = NumberParts::of(before.value());
    const NumberParts::Numbers now = NumberParts::of(after.value());
    const auto [from, to] = std::mismatch(old.begin(), old.end(), now.begin(), now.end());
    if (old.size() != matrixSize || from == old.end())
        return {};
    const std::ptrdiff_t place = from - old.begin();
    const bool isOnlyOne = std::equal(from + 1, old.end(), to + 1, now.end());
    return QCoreApplication::translate("FieldCommand", "row %1, column %2: %3 %4 %5")
               .arg(place / columns + 1)
               .arg(place % columns + 1)
               .arg(NumberParts::shortest(*from), QChar(0x2192), NumberParts::shortest(*to))
        + (isOnlyOne ? QString() : QStringLiteral(", \u2026"));
}
} // namespace

FieldCommand::FieldCommand(SoField &field, const FieldSnapshot &before, const FieldSnapshot &after, int series)
    : m_container(coinRef(field.getContainer())), m_field(field), m_before(before), m_after(after), m_series(series)
{
    describe();
}

int FieldCommand::newSeries()
{
    static int last = noSeries;
    return ++last;
}

void FieldCommand::setImagesBefore(std::vector<FieldState> images)
{
    for (FieldState &image : images) {
        const FieldSnapshot now(*image.field);
        if (now == image.state && now.isDefault()) // one that is saved may go on the way back
            continue;
        m_imagesAfter.push_back({image.field, now});
        m_imagesBefore.push_back(std::move(image));
    }
}

void FieldCommand::undo()
{
    restore(m_before, m_imagesBefore);
}

/// The values first and then, once more, what they do to each other's flags.
void FieldCommand::restore(const FieldSnapshot &state, const std::vector<FieldState> &images)
{
    const KeptImages kept(m_field);
    for (int round = 0; round < (images.empty() ? 1 : 2); ++round) {
        state.restore(m_field);
        for (const FieldState &image : images)
            image.state.restore(*image.field);
    }
}

void FieldCommand::redo()
{
    if (!std::exchange(m_done, false))
        restore(m_after, m_imagesAfter);
}

bool FieldCommand::mergeWith(const QUndoCommand *next)
{
    const auto &following = static_cast<const FieldCommand &>(*next);
    if (&following.m_field != &m_field)
        return false;
    m_after = following.m_after;
    setObsolete(m_before.isSameValue(m_after));
    if (isObsolete())
        m_before.restore(m_field); // there and back
    describe();
    return true;
}

void FieldCommand::describe()
{
    const auto translated = [](const char *text) { return QCoreApplication::translate("FieldCommand", text); };
    const QString name = FieldText::qualifiedName(m_field);
    const QString change = firstChange(m_before, m_after);
    if (!change.isEmpty())
        setText(QStringLiteral("%1: %2").arg(name, change));
    else if (!m_before.isSameValue(m_after))
        setText(QStringLiteral("%1: %2 %3 %4").arg(name, m_before.text(), QChar(0x2192), m_after.text()));
    else
        setText(translated("%1: set to default").arg(name));
}
