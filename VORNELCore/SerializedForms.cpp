#include "SerializedForms.h"

#include <QRegularExpression>
#include <QStringDecoder>

namespace vornel {

QString uuidText(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidFromText(const QString &text)
{
    const QUuid id(text);
    return uuidText(id) == text.toUpper() ? std::optional(id) : std::nullopt;
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
    static const QRegularExpression shape(
        QStringLiteral(R"(\A\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d(Z|[+-]\d\d:\d\d)\z)"));
    if (!shape.match(text).hasMatch())
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
