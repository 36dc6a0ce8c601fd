#pragma once

#include <VORNELCore/Records/ExchangeRecords.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QByteArray>
#include <QFuture>
#include <QUuid>

#include <filesystem>
#include <optional>

namespace vornel {

/// Skills that leave the library for others, and come into it from them. Each operation may fail with
/// `notBootstrapped` or a file-system error.
class SkillExchange
{
public:
    virtual ~SkillExchange() = default;

    /// Writes active skills into a new zip at an absolute path: a folder for each, named after its slug, with
    /// what its copies hold. The same skills make the same bytes. Fails with `skillNotFound`, with what a
    /// walk over a skill throws, and with `file_exists` where anything stands at the path; nothing is left
    /// there then.
    virtual QFuture<SkillExport> exportSkills(QList<QUuid> ids, std::filesystem::path file) = 0;

    /// What adding these would do, by slug; changes nothing. A source is an absolute path: a skill's folder,
    /// a folder of such folders, or an archive of either (zip; tar, which may be compressed). A skill has the
    /// name of its folder; one at the top of an archive, that of its text, where that is a slug, or else of
    /// the archive. Fails where any skill can't be added: `invalidPath` for its slug, `missingSkillFile`,
    /// `duplicateSlug` where the trash holds it, what a walk over it throws, and `integrityFailure` for an
    /// archive that can't be read, holds too much, or would lead out of its folder.
    virtual QFuture<QList<SkillAddition>> reviewAddition(QList<std::filesystem::path> sources) = 0;

    /// The bytes of a file of a skill that was reviewed; nothing where no file is. Fails as a review does,
    /// with `integrityFailure` where the skill holds something else by now, and with `invalidPath` for a path
    /// out of it.
    virtual QFuture<std::optional<QByteArray>>
    readAddedFile(QList<std::filesystem::path> sources, SkillAddition reviewed, QString relativePath) = 0;

    /// Adds what was reviewed: new skills as an import does, and of those that differ and for which the user
    /// has chosen so, the next revision. Returns all of them as they are then. Before anything is written, it
    /// fails as a review does, with `integrityFailure` where that would show something else by now, and with
    /// `unresolvedCollisions`. Targets that could not be written are told at the end, as one `partialSync`.
    virtual QFuture<QList<SkillDetail>> addSkills(QList<std::filesystem::path> sources,
                                                  QList<SkillAddition> reviewed) = 0;
};

} // namespace vornel
