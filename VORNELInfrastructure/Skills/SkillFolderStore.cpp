#include "SkillFolderStore.h"

#include "SchemaVersion.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// Refuses a file that would be too large for a walk over the folder, before it is written.
void replaceSkillFile(FileSystem &files, const fs::path &path, const QByteArray &bytes, Durability durability)
{
    if (bytes.size() > SkillFiles::sizeLimit)
        throw VORNELWorkspaceError::unsafeImport(pathText(path.filename()));
    replaceFile(files, path, bytes, durability);
}

} // namespace

void advanceRevision(SkillManifest &manifest)
{
    if (manifest.revision == std::numeric_limits<qint64>::max())
        throw VORNELWorkspaceError::integrityFailure(u"La révision du skill ne peut plus augmenter."_s);
    manifest.revision += 1;
    manifest.updatedAt = currentInstant();
}

void SkillFolderStore::writeSkillMD(const QString &text, const fs::path &folder) const
{
    replaceSkillFile(m_files, folder / SkillFiles::text, text.toUtf8(), Durability::Later);
}

void SkillFolderStore::writeManifest(const SkillManifest &manifest, const fs::path &folder,
                                     Durability durability) const
{
    refuseNewer(manifest);
    replaceSkillFile(m_files, folder / SkillFiles::manifest, bytesOf(manifest), durability);
}

QByteArray SkillFolderStore::bytesOf(const SkillManifest &manifest)
{
    return RecordJson::document(RecordJson::encode(manifest));
}

SkillManifest SkillFolderStore::readManifest(const fs::path &folder) const
{
    return readManifest(m_files.openFolder(folder.parent_path()), folder.filename().native());
}

SkillManifest SkillFolderStore::readManifest(const Folder &parent, const std::string &name) const
{
    std::optional<SkillManifest> manifest;
    try {
        manifest = RecordJson::decodeDocument<SkillManifest>(
            readFile(m_files, m_files.openFolder(parent, name), SkillFiles::manifest, SkillFiles::sizeLimit));
    } catch (const std::exception &) { // whatever is wrong with the file, it is reported as below
    }
    if (!manifest)
        throw VORNELWorkspaceError::malformedManifest(
            pathText(fs::path(parent.path) / name / SkillFiles::manifest));
    return *manifest;
}

QString SkillFolderStore::readSkillMD(const fs::path &folder, const QString &slug) const
{
    const std::optional<QByteArray> bytes = fileBytes(folder, QString::fromLatin1(SkillFiles::text));
    if (!bytes)
        throw VORNELWorkspaceError::missingSkillFile(slug);
    const auto text = textFromUtf8(*bytes);
    if (!text)
        throw fs::filesystem_error("decode", folder / SkillFiles::text,
                                   std::make_error_code(std::errc::illegal_byte_sequence));
    return *text;
}

std::optional<QByteArray> SkillFolderStore::fileBytes(const fs::path &folder,
                                                      const QString &relativePath) const
{
    WorkspaceValidation::validateRelativePath(relativePath.toUtf8());
    const fs::path path = folder / pathFromText(relativePath);
    const std::optional<FileKind> kind = m_files.kindAt(path);
    if (!kind || *kind == FileKind::Directory)
        return std::nullopt;
    return readFile(m_files, path, SkillFiles::sizeLimit);
}

void SkillFolderStore::discard(const fs::path &folder) const
{
    const bool isOutOfSight =
        folder.parent_path() == m_config.staging() || folder.filename().native().starts_with('.');
    if (isOutOfSight)
        return removeTree(m_files, folder);
    const Stage condemned = makeStage();
    moveTree(m_files, folder, condemned.path());
    removeTree(m_files, condemned.path());
}

} // namespace vornel
