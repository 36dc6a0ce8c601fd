#include "ZipWriter.h"

#include "ArchiveNames.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <archive.h>
#include <archive_entry.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

using EntryHandle = std::unique_ptr<archive_entry, decltype(&::archive_entry_free)>;

EntryHandle makeEntry(const std::string &path, unsigned int type, mode_t permissions)
{
    EntryHandle entry(::archive_entry_new(), &::archive_entry_free);
    ::archive_entry_set_pathname(entry.get(), path.c_str());
    ::archive_entry_set_filetype(entry.get(), type);
    ::archive_entry_set_perm(entry.get(), permissions);
    return entry;
}

/// A name that is marked as UTF-8 is composed (NFC) when libarchive reads it, whatever it was; one that isn't
/// marked stays as it is.
ArchiveNames::Encoding encodingFor(const std::string &path)
{
    const QString text = QString::fromStdString(path);
    return text.normalized(QString::NormalizationForm_C) == text ? ArchiveNames::Encoding::Utf8
                                                                 : ArchiveNames::Encoding::Unknown;
}

} // namespace

void ZipWriter::Free::operator()(archive *archive) const
{
    ::archive_write_free(archive);
}

ZipWriter::ZipWriter(FileSystem &files, const File &file)
    : m_files(files), m_file(file), m_archive(::archive_write_new())
{
    require(::archive_write_set_format_zip(m_archive.get()));
    require(::archive_write_set_bytes_in_last_block(m_archive.get(), 1));
    require(::archive_write_open(m_archive.get(), this, nullptr, &ZipWriter::writeTo, nullptr));
}

void ZipWriter::addFolder(const std::string &path)
{
    const ArchiveNames names(encodingFor(path));
    require(::archive_write_header(m_archive.get(), makeEntry(path + '/', AE_IFDIR, 0755).get()));
}

void ZipWriter::addFile(const std::string &path, QByteArrayView bytes)
{
    const ArchiveNames names(encodingFor(path));
    const EntryHandle entry = makeEntry(path, AE_IFREG, 0644);
    ::archive_entry_set_size(entry.get(), bytes.size());
    require(::archive_write_header(m_archive.get(), entry.get()));
    require(::archive_write_data(m_archive.get(), bytes.data(), static_cast<std::size_t>(bytes.size())));
    require(::archive_write_finish_entry(m_archive.get()));
}

void ZipWriter::finish()
{
    require(::archive_write_close(m_archive.get()));
}

/// No exception may pass through libarchive.
ssize_t ZipWriter::writeTo(archive * /*archive*/, void *writer, const void *bytes, std::size_t count)
{
    auto &self = *static_cast<ZipWriter *>(writer);
    try {
        if (self.m_failure)
            return ARCHIVE_FATAL;
        self.m_files.write(self.m_file, {static_cast<const char *>(bytes), static_cast<qsizetype>(count)});
        self.m_size += static_cast<std::int64_t>(count);
        return static_cast<ssize_t>(count);
    } catch (...) {
        self.m_failure = std::current_exception();
        return ARCHIVE_FATAL;
    }
}

void ZipWriter::require(ssize_t result) const
{
    if (m_failure)
        std::rethrow_exception(m_failure);
    if (result < ARCHIVE_OK)
        throw VORNELWorkspaceError::integrityFailure(u"L’archive ne peut pas être écrite (%1)."_s.arg(
            QString::fromUtf8(::archive_error_string(m_archive.get()))));
}

} // namespace vornel
