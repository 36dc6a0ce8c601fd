#pragma once

#include <VORNELCore/Records/RecordJson.h>

#include <QJsonDocument>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>

/// What the fuzz targets have in common.
namespace vornel::Fuzz {

/// Ends the run, which keeps the input, when a promise is broken.
inline void promise(bool isHeld, const char *text)
{
    if (isHeld)
        return;
    std::fprintf(stderr, "not held: %s\n", text);
    std::abort();
}

inline QByteArray bytes(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

/// The record that a document holds. Checks that it can be written and read again, and that none of its keys
/// can be left out.
template <typename Record>
std::optional<Record> checkedRecord(const QByteArray &document)
{
    const auto record = RecordJson::decodeDocument<Record>(document);
    if (!record)
        return std::nullopt;
    const QByteArray written = RecordJson::document(RecordJson::encode(*record));
    const auto again = RecordJson::decodeDocument<Record>(written);
    promise(again.has_value(), "what was written can be read");
    promise(RecordJson::document(RecordJson::encode(*again)) == written, "what was read is what was written");

    const QJsonObject object = QJsonDocument::fromJson(document).object();
    for (const QString &key : QJsonDocument::fromJson(written).object().keys()) {
        QJsonObject incomplete = object;
        incomplete.remove(key);
        promise(!RecordJson::decodeDocument<Record>(RecordJson::document(incomplete)), "every key is needed");
    }
    return record;
}

} // namespace vornel::Fuzz
