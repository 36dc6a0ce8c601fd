#include "PipedFile.h"

#include "InputFile.h"

#include <VORNELCommand/Output/CommandFailure.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Exchange/ArchiveBudget.h>

#include <unistd.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <system_error>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

/// The file is called as on the command line, which tells no slug.
PipedFile::PipedFile() : m_path(pathFromText(m_folder.filePath(u"-"_s)))
{
    if (!m_folder.isValid())
        throw fs::filesystem_error("mkdir", fs::temp_directory_path(),
                                   std::error_code(errno, std::system_category()));
}

void PipedFile::fill() const
{
    std::ofstream file(m_path, std::ios::binary);
    std::int64_t left = ArchiveLimits().bytes;
    readInput(u"-"_s, [&](QByteArrayView bytes) {
        left -= bytes.size();
        if (left < 0)
            throw fs::filesystem_error("read", m_path.filename(),
                                       std::make_error_code(std::errc::file_too_large));
        file.write(bytes.data(), bytes.size());
    });
    if (!file.flush())
        throw fs::filesystem_error("write", m_path, std::error_code(errno, std::system_category()));
}

void PipedFile::print() const
{
    std::ifstream file(m_path, std::ios::binary);
    std::array<char, 64UL * 1024> buffer{};
    while (file) {
        file.read(buffer.data(), buffer.size());
        const auto count = static_cast<std::size_t>(file.gcount());
        if (std::fwrite(buffer.data(), 1, count, stdout) != count)
            throw std::system_error(errno, std::system_category());
    }
    if (!file.eof() || std::fflush(stdout) != 0)
        throw std::system_error(errno, std::system_category());
}

void requirePipedOutput()
{
    if (::isatty(STDOUT_FILENO) == 1)
        throw CommandFailure(u"terminalOutput"_s,
                             u"Un terminal ne peut pas afficher une archive\u00A0: redirigez la sortie."_s);
}

} // namespace vornel
