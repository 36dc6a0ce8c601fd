#pragma once

#include <QDateTime>
#include <QString>
#include <QUuid>

#include <filesystem>
#include <optional>

/// The text forms of identifiers, dates and paths in files, folder names and messages.
namespace vornel {

/// The upper-case hyphenated form, without braces.
QString uuidText(const QUuid &id);

/// Reads the 36-character hyphenated form, in either case; nothing for any other text.
std::optional<QUuid> uuidFromText(const QString &text);

/// The current instant, as `instantAt` gives it.
QDateTime currentInstant();

/// An instant in UTC, in the whole seconds that files keep. Throws `integrityFailure` for one beyond the year
/// 9999, for which they have no form.
QDateTime instantAt(qint64 secondsSinceEpoch);

/// ISO 8601 in UTC with whole seconds, for example "2026-02-28T09:30:00Z".
QString dateText(const QDateTime &date);

/// Reads an ISO 8601 date-time with whole seconds and a zone ("Z" or an offset); nothing for any other text,
/// and for a time that doesn't exist.
std::optional<QDateTime> dateFromText(const QString &text);

/// The text of UTF-8 bytes, every character kept, a byte-order mark too; nothing for any other bytes.
std::optional<QString> textFromUtf8(const QByteArray &bytes);

/// A path as text; bytes that are not UTF-8 become U+FFFD, so the text is for showing only.
QString pathText(const std::filesystem::path &path);

/// The path that a text names.
std::filesystem::path pathFromText(const QString &text);

/// `path` without ".", ".." and doubled or trailing separators. Links are not resolved.
std::filesystem::path standardizedPath(const std::filesystem::path &path);

} // namespace vornel
