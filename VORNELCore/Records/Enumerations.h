#pragma once

#include <QHashFunctions>
#include <QList>
#include <QMetaEnum>
#include <QString>

#include <optional>
#include <type_traits>

/// The enumerations of the domain. A case's name is also its serialised form.
namespace vornel {
Q_NAMESPACE
Q_CLASSINFO("RegisterEnumClassesUnscoped", "false") // cases of one name stay apart in QML

/// The stage of a skill's life.
enum class Maturity { draft, ready, active, obsolete };
Q_ENUM_NS(Maturity)

/// How the copies of a skill stand against its canonical folder.
enum class SyncState { unknown, inSync, drifted, missing, failed };
Q_ENUM_NS(SyncState)

/// Why a copy differs from the canonical folder, from the mildest cause to the worst. `outdated`: it holds a
/// kept revision, so the canonical folder has changed since. `unknown`: the history can't tell. `edited`: it
/// holds what no kept revision does, so somebody has changed the copy itself.
enum class Drift { none, outdated, unknown, edited };
Q_ENUM_NS(Drift)

/// An assistant whose skills folder receives a copy of every skill.
enum class TargetKind { claude, codex };
Q_ENUM_NS(TargetKind)

/// How a copy differs in one file or folder: `added` is only in the copy, `removed` only in the canonical
/// folder.
enum class FileChange { added, removed, changed };
Q_ENUM_NS(FileChange)

/// The same change, told from the other side.
constexpr FileChange reversed(FileChange change)
{
    if (change == FileChange::changed)
        return change;
    return change == FileChange::added ? FileChange::removed : FileChange::added;
}

/// Why a version is in a skill's history: as a revision, or because something was put in its place.
enum class HistoryKind { revision, replaced };
Q_ENUM_NS(HistoryKind)

/// Where a version was written: in the library, or in an assistant's folder.
enum class VersionOrigin { library, claude, codex };
Q_ENUM_NS(VersionOrigin)

/// In what order a library is shown: by its categories, by name, or what was changed last first.
enum class LibraryOrder { category, name, updated };
Q_ENUM_NS(LibraryOrder)

/// What was done that can be taken back.
enum class UndoableAction {
    save,
    assignment,
    synchronisation,
    trash,
    adoption,
    handEdits,
    merge,
    reversion,
    properties,
    files
};
Q_ENUM_NS(UndoableAction)

/// Whether what a check has found keeps assistants from reading a skill, or is an advice.
enum class ProblemSeverity { error, hint };
Q_ENUM_NS(ProblemSeverity)

/// Why a slug, a relative path or a root is refused.
enum class PathViolation {
    empty,
    absolute,
    parentTraversal,
    nullByte,
    reserved,
    invalidSlug,
    outsideRoot,
    overlappingRoots
};
Q_ENUM_NS(PathViolation)

/// Whether an importable folder was found in one assistant's folder, or with equal content in both.
enum class ImportClassification { singleSource, identical };
Q_ENUM_NS(ImportClassification)

/// The side the user keeps when both assistants hold different content under one slug.
enum class CollisionChoice { claude, codex };
Q_ENUM_NS(CollisionChoice)

/// How a skill that is to be added stands to the library: unknown there, there with the same content, or with
/// other content.
enum class AdditionKind { added, identical, different };
Q_ENUM_NS(AdditionKind)

/// Which content the user keeps where they differ.
enum class AdditionChoice { library, added };
Q_ENUM_NS(AdditionChoice)

template <typename E>
requires std::is_enum_v<E> size_t qHash(E value, size_t seed = 0)
{
    return ::qHash(static_cast<int>(value), seed);
}

/// The serialised form of an enumeration's case.
template <typename E>
QString rawValue(E value)
{
    return QString::fromLatin1(QMetaEnum::fromType<E>().valueToKey(static_cast<int>(value)));
}

/// The case whose serialised form is exactly `text`; nothing when there is none.
template <typename E>
std::optional<E> fromRawValue(const QString &text)
{
    bool known = false;
    const int value = QMetaEnum::fromType<E>().keyToValue(text.toUtf8().constData(), &known);
    return known && rawValue(static_cast<E>(value)) == text ? std::optional(static_cast<E>(value))
                                                            : std::nullopt;
}

/// Every case of an enumeration, in declaration order.
template <typename E>
QList<E> allCases()
{
    const QMetaEnum cases = QMetaEnum::fromType<E>();
    QList<E> values;
    for (int index = 0; index < cases.keyCount(); ++index)
        values.append(static_cast<E>(cases.value(index)));
    return values;
}

} // namespace vornel
