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
    constexpr qsizetype zoneAt = 19;
    const QStringView zone = QStringView(text).mid(zoneAt);
    if (!hasShape(QStringView(text).left(zoneAt), u"0000-00-00T00:00:00") ||
        (zone != u"Z" && !hasShape(zone, u"+00:00") && !hasShape(zone, u"-00:00")))
        return std::nullopt;
    const auto number = [&text](qsizetype at, qsizetype digits) {
        return QStringView(text).mid(at, digits).toInt();
    };
    const QDateTime local(QDate(number(0, 4), number(5, 2), number(8, 2)),
                          QTime(number(11, 2), number(14, 2), number(17, 2)), Qt::UTC);
    if (!local.isValid())
        return std::nullopt;
    const int offset = zone == u"Z" ? 0 : number(20, 2) * 3600 + number(23, 2) * 60;
    const QDateTime date = local.addSecs(zone.startsWith(u'+') ? -offset : offset);
    const bool hasFourDigitYear = date.date().year() >= 1 && date.date().year() <= 9999;
    return hasFourDigitYear ? std::optional(date) : std::nullopt;
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
