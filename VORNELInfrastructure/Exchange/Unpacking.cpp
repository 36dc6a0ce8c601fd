#include "Unpacking.h"

#include "ArchivePath.h"
#include "ArchiveReader.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>

#include <map>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

class Unpacking
{
public:
    Unpacking(FileSystem &files, fs::path destination, const ArchiveLimits &limits)
        : m_files(files), m_destination(std::move(destination)), m_budget(limits)
    {}

    void run(ArchiveReader archive)
    {
        createFolders(m_files, m_destination, Durability::Later);
        while (const std::optional<ArchiveEntry> entry = archive.next()) {
            m_budget.takeEntry();
            add(*entry, archive);
        }
    }

private:
    void add(const ArchiveEntry &entry, ArchiveReader &archive)
    {
        const std::string path = archivePath(entry.name);
        if (entry.kind == FileKind::SymbolicLink)
            throw VORNELWorkspaceError::symlinkUnsupported(QString::fromStdString(path));
        if (entry.kind == FileKind::Other)
            throw refusal(path, u"qui n’est ni un fichier ni un dossier"_s);
        if (path.empty() && entry.kind != FileKind::Directory)
            throw VORNELWorkspaceError::integrityFailure(u"L’archive contient un fichier sans nom."_s);
        claim(path, entry.kind);
        if (path.empty())
            return;
        if (entry.kind == FileKind::Directory)
            createFolders(m_files, m_destination / path, Durability::Later);
        else
            addFile(path, archive);
    }

    void addFile(const std::string &path, ArchiveReader &archive)
    {
        const fs::path place = m_destination / path;
        const File file = m_files.createFile(createFolders(m_files, place.parent_path(), Durability::Later),
                                             place.filename());
        std::int64_t size = 0;
        archive.read([&](QByteArrayView bytes) {
            m_budget.takeBytes(bytes.size());
            size += bytes.size();
            if (size > SkillFiles::sizeLimit)
                throw refusal(path, u"qui dépasse 25\u00A0Mio"_s);
            m_files.write(file, bytes);
        });
    }

    /// A place holds one file, or any number of times the same folder. Folders that are only named by what is
    /// in them count, too.
    void claim(const std::string &path, FileKind kind, bool isImplied = false)
    {
        const auto [place, isNew] = m_claims.emplace(path, kind);
        if (!isNew && (kind != FileKind::Directory || place->second != FileKind::Directory))
            throw refusal(path, u"qui y est deux fois"_s);
        if (isNew && isImplied)
            m_budget.takeEntry();
        if (const auto slash = path.rfind('/'); isNew && slash != std::string::npos)
            claim(path.substr(0, slash), FileKind::Directory, true);
    }

    static VORNELWorkspaceError refusal(const std::string &path, const QString &reason)
    {
        return VORNELWorkspaceError::integrityFailure(
            u"L’archive contient «\u00A0%1\u00A0», %2."_s.arg(QString::fromStdString(path), reason));
    }

    FileSystem &m_files;
    fs::path m_destination;
    ArchiveBudget m_budget;
    std::map<std::string, FileKind> m_claims{{"", FileKind::Directory}};
};

} // namespace

void unpack(FileSystem &files, const File &archive, const fs::path &destination, const ArchiveLimits &limits)
{
    Unpacking(files, destination, limits).run(ArchiveReader(archive));
}

} // namespace vornel
