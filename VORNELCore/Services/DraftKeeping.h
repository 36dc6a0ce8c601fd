#pragma once

#include <QDateTime>
#include <QFuture>
#include <QList>
#include <QObject>
#include <QUuid>

#include <filesystem>
#include <optional>

namespace vornel {

/// A text of another file of a skill that is typed and not saved yet.
struct UnsavedFile
{
    Q_GADGET
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString baseDigest MEMBER baseDigest)

public:
    QString path; ///< below the skill's folder
    QString text;
    QString baseDigest; ///< of the bytes with which the edits began (`sha256Of`); a missing file is empty

    bool operator==(const UnsavedFile &) const = default;
};

/// A text of "SKILL.md" that is typed and not saved yet, and those of the skill's other files.
struct UnsavedText
{
    QString text;
    QString baseText;   ///< the saved text with which the edits began
    QString baseDigest; ///< its digest, where the text itself is no longer known; otherwise empty
    QList<UnsavedFile> files = {};

    bool operator==(const UnsavedText &) const = default;
};

/// An unsaved text as it is kept.
struct KeptDraft
{
    Q_GADGET
    Q_PROPERTY(qint64 schemaVersion MEMBER schemaVersion)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString baseDigest MEMBER baseDigest)
    Q_PROPERTY(QDateTime keptAt MEMBER keptAt)
    Q_PROPERTY(QList<vornel::UnsavedFile> files MEMBER files)

public:
    static constexpr qint64 currentVersion = 2; ///< the first one had no files

    qint64 schemaVersion = currentVersion;
    QString text;
    QString baseDigest; ///< of the saved text when the edits began (`sha256Of`)
    QDateTime keptAt;   ///< UTC, whole seconds
    QList<UnsavedFile> files = {};

    bool operator==(const KeptDraft &) const = default;
};

/// A file among the unsaved texts.
struct DraftFile
{
    QUuid id;          ///< of the skill
    bool isSetAside{}; ///< whether it could not be read as a draft, so that no editor opens it
    std::filesystem::path place;

    bool operator==(const DraftFile &) const = default;
};

/// Keeps unsaved texts, one for each skill, in the workspace, without waiting for operations on the library.
/// Each operation may fail with `symlinkUnsupported` or a file-system error.
class DraftKeeping
{
public:
    virtual ~DraftKeeping() = default;

    /// Keeps a text in the place of an earlier one; one that could not be read is set aside instead. A text
    /// above the file limit fails with `file_too_large`.
    virtual QFuture<void> keepDraft(QUuid id, UnsavedText text) = 0;

    /// What is kept for the skill; nothing without a draft. A file that isn't a draft is set aside.
    virtual QFuture<std::optional<KeptDraft>> draft(QUuid id) = 0;

    /// Deletes the skill's draft, if there is one; one that could not be read stays.
    virtual QFuture<void> discardDraft(QUuid id) = 0;

    /// Everything that is kept, in the order of the names.
    virtual QFuture<QList<DraftFile>> files() = 0;

    /// Deletes one of the files, if it is still there.
    virtual QFuture<void> discardFile(DraftFile file) = 0;
};

} // namespace vornel
