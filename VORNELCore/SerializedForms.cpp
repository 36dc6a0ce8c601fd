#include "SerializedForms.h"

#include <QStringDecoder>

#include <algorithm>

namespace vornel {

namespace {

/// Whether `text` equals `shape`, in which "0" stands for any digit.
bool hasShape(QStringView text, QStringView shape)
{
    return std::ranges::equal(text, shape, [](QChar c, QChar expected) {
        return expected == u'0' ? c >= u'0' && c <= u'9' : c == expected;
    });
}

} // namespace

QString uuidText(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidFromText(const QString &text)
{
    const QUuid id(text);
    const bool isExactly = id.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) == 0;
    return isExactly ? std::optional(id) : std::nullopt;
}

QDateTime currentInstant()
{
    return QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
}

QString dateText(const QDateTime &date)
{
    return date.toUTC().toString(Qt::ISODate);
}

std::optional<QDateTime> dateFromText(const QString &text)
{
    // Qt reads much more than this as ISO 8601: dates alone, fractions, local times.
    if (!hasShape(text, u"0000-00-00T00:00:00Z") && !hasShape(text, u"0000-00-00T00:00:00+00:00") &&
        !hasShape(text, u"0000-00-00T00:00:00-00:00"))
        return std::nullopt;
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    return date.isValid() ? std::optional(date.toUTC()) : std::nullopt;
}

std::optional<QString> textFromUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder(bytes);
    return text.toUtf8() == bytes ? std::optional(text) : std::nullopt;
}

QString pathText(const std::filesystem::path &path)
{
    return QString::fromStdString(path.native());
}

std::filesystem::path pathFromText(const QString &text)
{
    return {text.toStdString()};
}

std::filesystem::path standardizedPath(const std::filesystem::path &path)
{
    const std::filesystem::path normal = path.lexically_normal();
    return normal.has_filename() || normal == normal.root_path() ? normal : normal.parent_path();
}

} // namespace vornel
