#include "ArchiveReader.h"

#include "ArchiveNames.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <archive.h>
#include <archive_entry.h>

#include <array>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr std::size_t blockSize = 64UL * 1024;

FileKind kindOf(archive_entry *entry)
{
    if (::archive_entry_hardlink(entry) != nullptr)
        return FileKind::SymbolicLink;
    switch (::archive_entry_filetype(entry)) {
    case AE_IFREG:
        return FileKind::Regular;
    case AE_IFDIR:
        return FileKind::Directory;
    case AE_IFLNK:
        return FileKind::SymbolicLink;
    default:
        return FileKind::Other;
    }
}

} // namespace

void ArchiveReader::Free::operator()(archive *archive) const
{
    ::archive_read_free(archive);
}

ArchiveReader::ArchiveReader(const File &file) : m_archive(::archive_read_new())
{
    archive *reader = m_archive.get();
    for (const auto support : {::archive_read_support_format_zip, ::archive_read_support_format_tar,
                               ::archive_read_support_filter_gzip, ::archive_read_support_filter_bzip2,
                               ::archive_read_support_filter_xz, ::archive_read_support_filter_zstd}) {
        if (support(reader) != ARCHIVE_OK)
            fail();
    }
    if (::archive_read_open_fd(reader, file.descriptor.fd(), blockSize) != ARCHIVE_OK)
        fail();
}

std::optional<ArchiveEntry> ArchiveReader::next()
{
    const ArchiveNames names(ArchiveNames::Encoding::Utf8);
    archive_entry *entry = nullptr;
    const int result = ::archive_read_next_header(m_archive.get(), &entry);
    if (result == ARCHIVE_EOF)
        return std::nullopt;
    if (result != ARCHIVE_OK)
        fail();
    const char *name = ::archive_entry_pathname(entry);
    return ArchiveEntry{name == nullptr ? std::string() : name, kindOf(entry)};
}

void ArchiveReader::read(const std::function<void(QByteArrayView)> &sink)
{
    std::array<char, blockSize> buffer;
    while (true) {
        const la_ssize_t count = ::archive_read_data(m_archive.get(), buffer.data(), buffer.size());
        if (count < 0)
            fail();
        if (count == 0)
            return;
        sink(QByteArrayView(buffer.data(), static_cast<qsizetype>(count)));
    }
}

void ArchiveReader::fail() const
{
    throw VORNELWorkspaceError::integrityFailure(u"L’archive ne peut pas être lue (%1)."_s.arg(
        QString::fromUtf8(::archive_error_string(m_archive.get()))));
}

} // namespace vornel
