#pragma once

#include <VORNELCore/Services/DraftKeeping.h>
#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <QSet>

namespace vornel {

/// The unsaved texts in a workspace, one file for each skill. Their folder is created with the first one. The
/// workspace isn't locked: a text is replaced in one step, and nobody but the window writes here.
class SkillDrafts
{
public:
    SkillDrafts(FileSystem &files, const std::filesystem::path &bookkeeping);

    /// Replaces the skill's draft in one step. Throws `file_too_large` for one that is too large to be read.
    void keep(const QUuid &id, const UnsavedText &text);

    /// The skill's draft; nothing without one. A file that can't be decoded is renamed, so that a later draft
    /// doesn't replace it. When a file can't be read, the reason is thrown, and the file is neither replaced
    /// nor discarded from then on.
    std::optional<KeptDraft> read(const QUuid &id);

    /// Deletes the skill's draft, if there is one.
    void discard(const QUuid &id);

    /// All drafts and the files that were set aside, by name. Removes what interrupted writes have left, once
    /// it is a minute old.
    QList<DraftFile> list() const;

    void remove(const DraftFile &file) const;

private:
    std::filesystem::path placeOf(const QUuid &id) const;
    bool exists(const std::filesystem::path &file) const { return m_files.kindAt(file).has_value(); }
    std::optional<KeptDraft> decoded(const std::filesystem::path &file) const;
    void setAside(const QUuid &id) const;
    void removeIfLeft(const Place &unfinished) const;

    FileSystem &m_files;
    const std::filesystem::path m_bookkeeping;
    const std::filesystem::path m_folder;
    QSet<QUuid> m_unread; ///< the skills whose drafts could not be read
};

} // namespace vornel
