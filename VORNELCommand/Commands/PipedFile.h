#pragma once

#include <QTemporaryDir>

#include <filesystem>

namespace vornel {

/// A file of the program's own, for what goes through a standard stream: nobody who holds the workspace waits
/// for whoever is at the other end of it.
class PipedFile
{
public:
    /// Only chooses the place; throws a `filesystem_error` where there is none.
    PipedFile();

    const std::filesystem::path &path() const { return m_path; }

    /// Writes the standard input to the file; throws what reading it throws, and a `filesystem_error` where
    /// it is longer than an archive may be.
    void fill() const;

    /// Writes the file to the standard output.
    void print() const;

private:
    QTemporaryDir m_folder;
    std::filesystem::path m_path;
};

/// Throws `CommandFailure` "terminalOutput" where the standard output is a terminal, which shows no archive.
void requirePipedOutput();

} // namespace vornel
