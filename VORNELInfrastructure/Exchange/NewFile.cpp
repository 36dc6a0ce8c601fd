#include "NewFile.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>

namespace vornel {

namespace fs = std::filesystem;

namespace {

Folder folderFor(const FileSystem &files, const fs::path &path)
{
    Folder folder = files.openAbove(path.parent_path());
    if (files.kindAt(folder, path.filename()))
        throw fs::filesystem_error("create", path, std::make_error_code(std::errc::file_exists));
    return folder;
}

} // namespace

NewFile::NewFile(FileSystem &files, const fs::path &path)
    : m_files(files),
      m_folder(folderFor(files, path)),
      m_name(path.filename()),
      m_temporary(temporaryName()),
      m_file(files.createFile(m_folder, m_temporary))
{}

NewFile::~NewFile()
{
    if (!m_isFinished)
        bestEffort([this] { m_files.remove(m_folder, m_temporary); });
}

void NewFile::finish()
{
    m_files.flush(m_file);
    m_files.rename({m_folder, m_temporary}, {m_folder, m_name}, RenameMode::ToFreePlace);
    m_isFinished = true;
    flushNames(m_files, m_folder);
}

} // namespace vornel
