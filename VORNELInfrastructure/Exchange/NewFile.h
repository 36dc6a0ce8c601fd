#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>

namespace vornel {

/// A file of the user's own, in a folder of his choice: it stands there once it is whole, and not before.
/// What isn't finished is removed.
class NewFile
{
public:
    /// Throws `file_exists` when anything stands at the absolute path, a link too.
    NewFile(FileSystem &files, const std::filesystem::path &path);
    ~NewFile();
    Q_DISABLE_COPY_MOVE(NewFile)

    const File &file() const { return m_file; }

    /// Flushes the file and puts it in its place; throws `file_exists` when something has come there.
    void finish();

private:
    FileSystem &m_files;
    Folder m_folder;
    std::string m_name;
    std::string m_temporary;
    File m_file;
    bool m_isFinished = false;
};

} // namespace vornel
