#include "InputFile.h"

#include <VORNELCommand/Output/CommandFailure.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

void readInput(const QString &name, const std::function<void(QByteArrayView)> &sink)
{
    const fs::path path = pathFromText(name);
    const Descriptor input(name == u"-" ? ::dup(STDIN_FILENO) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (input.fd() < 0)
        throw fs::filesystem_error("open", path, std::error_code(errno, std::system_category()));
    std::array<char, 64UL * 1024> buffer;
    while (true) {
        const ssize_t count = ::read(input.fd(), buffer.data(), buffer.size());
        if (count < 0 && errno == EBADF)
            throw CommandFailure(u"closedInput"_s, u"L’entrée standard est fermée."_s);
        if (count < 0 && errno != EINTR)
            throw fs::filesystem_error("read", path, std::error_code(errno, std::system_category()));
        if (count == 0)
            return;
        sink(QByteArrayView(buffer.data(), std::max<ssize_t>(count, 0)));
    }
}

QByteArray bytesOfFile(const QString &name)
{
    QByteArray content;
    readInput(name, [&](QByteArrayView bytes) {
        content.append(bytes);
        if (content.size() > SkillFiles::sizeLimit)
            throw fs::filesystem_error("read", pathFromText(name),
                                       std::make_error_code(std::errc::file_too_large));
    });
    return content;
}

QString textOfFile(const QString &name)
{
    const auto text = textFromUtf8(bytesOfFile(name));
    if (!text)
        throw fs::filesystem_error("decode", pathFromText(name),
                                   std::make_error_code(std::errc::illegal_byte_sequence));
    return *text;
}

} // namespace vornel
