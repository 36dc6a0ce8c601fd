#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QMetaProperty>
#include <QVariant>

#include <optional>

/// The JSON form of the records: an object with one key a stored property, identifiers, dates and
/// enumerations in their text forms, an absent value as null.
namespace vornel::RecordJson {

/// The JSON form of any value that a record's property may hold, and of records and lists of records.
QJsonValue encode(const QVariant &value);

/// The JSON form of a record, or of a list of records.
template <typename Record>
QJsonValue encode(const Record &record)
{
    return encode(QVariant::fromValue(record));
}

/// A whole JSON document as files hold it: UTF-8, indented, keys sorted, slashes not escaped.
QByteArray document(const QJsonValue &value);

/// Reads a record of type `type` from the text of a JSON document. Strict: a missing key, a value of the
/// wrong type, a fraction for an integer, an unknown enumeration value, a malformed identifier or date each
/// make the whole reading fail, with an invalid result. Keys that the record lacks are passed over.
QVariant decodeDocument(const QByteArray &document, QMetaType type);

/// Reads a `Record` from the text of a JSON document; nothing when any part of it is wrong.
template <typename Record>
std::optional<Record> decodeDocument(const QByteArray &document)
{
    const QVariant value = decodeDocument(document, QMetaType::fromType<Record>());
    return value.isValid() ? std::optional(value.value<Record>()) : std::nullopt;
}

} // namespace vornel::RecordJson
