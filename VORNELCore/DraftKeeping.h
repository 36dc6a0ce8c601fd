#pragma once

#include <QDateTime>
#include <QFuture>
#include <QObject>
#include <QUuid>

#include <optional>

namespace vornel {

/// A text of "SKILL.md" that was typed and not saved yet.
struct KeptDraft
{
    Q_GADGET
    Q_PROPERTY(qint64 schemaVersion MEMBER schemaVersion)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString baseDigest MEMBER baseDigest)
    Q_PROPERTY(QDateTime keptAt MEMBER keptAt)

public:
    /// Names the saved text that a draft was made from: SHA-256, in lower-case hexadecimal digits.
    static QString digestOf(const QString &savedText);

    qint64 schemaVersion = 1;
    QString text;
    QString baseDigest; ///< of the saved text when the edits began
    QDateTime keptAt;   ///< UTC, whole seconds

    bool operator==(const KeptDraft &) const = default;
};

/// Keeps unsaved texts, one for each skill, beside the workspace's bookkeeping. Each operation may fail with
/// `notBootstrapped`, `symlinkUnsupported` or a file-system error.
class DraftKeeping
{
public:
    virtual ~DraftKeeping() = default;

    /// Keeps a draft in the place of an earlier one. One above the file limit fails with `file_too_large`.
    virtual QFuture<void> keepDraft(QUuid id, KeptDraft draft) = 0;

    /// What is kept for the skill; nothing without a draft. What can't be read as one is set aside.
    virtual QFuture<std::optional<KeptDraft>> draft(QUuid id) = 0;

    /// Deletes the skill's draft, if there is one.
    virtual QFuture<void> discardDraft(QUuid id) = 0;
};

} // namespace vornel
