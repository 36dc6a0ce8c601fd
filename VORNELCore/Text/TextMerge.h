#pragma once

#include <VORNELCore/Records/Enumerations.h>

#include <QByteArray>

#include <optional>

namespace vornel {

/// Two texts, joined line by line.
struct MergedText
{
    QByteArray text;      ///< where lines are in conflict, both versions of them stand between marks
    bool isClean = false; ///< whether there are none
};

/// Joins what two versions of a text have changed since a third one, their base. The marks of a conflict name
/// the assistants. Nothing unless all three are texts: UTF-8 without null characters, of at most 200,000
/// lines in all. Throws `std::runtime_error` when memory is short.
std::optional<MergedText> mergeTexts(QByteArrayView base, QByteArrayView claude, QByteArrayView codex);

} // namespace vornel
