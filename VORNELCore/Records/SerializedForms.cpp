#include "SerializedForms.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// Whether `text` equals `shape`, in which "0" stands for any digit.
bool hasShape(QStringView text, QStringView shape)
{
    return std::ranges::equal(text, shape, [](QChar c, QChar expected) {
        return expected == u'0' ? c >= u'0' && c <= u'9' : c == expected;
    });
}

/// Whether the year has the four digits that a date-time is written with.
bool hasForm(const QDateTime &date)
{
    return date.date().year() >= 1 && date.date().year() <= 9999;
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
    return instantAt(QDateTime::currentSecsSinceEpoch());
}

QDateTime instantAt(qint64 secondsSinceEpoch)
{
    QDateTime instant = QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, Qt::UTC);
    if (!hasForm(instant))
        throw VORNELWorkspaceError::integrityFailure(
            u"L’horloge de l’ordinateur est réglée au-delà de l’année 9999."_s);
    return instant;
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
    const QDate day(number(0, 4), number(5, 2), number(8, 2));
    const QTime time(number(11, 2), number(14, 2), number(17, 2));
    const QTime offset = zone == u"Z" ? QTime(0, 0) : QTime(number(20, 2), number(23, 2));
    if (!day.isValid() || !time.isValid() || !offset.isValid())
        return std::nullopt;
    const int seconds = QTime(0, 0).secsTo(offset);
    const QDateTime date = QDateTime(day, time, Qt::UTC).addSecs(zone.startsWith(u'+') ? -seconds : seconds);
    return hasForm(date) ? std::optional(date) : std::nullopt;
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
