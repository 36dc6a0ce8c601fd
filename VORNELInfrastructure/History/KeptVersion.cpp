#include "KeptVersion.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr QStringView momentForm = u"yyyyMMdd'T'HHmmsszzz'Z'";

QString freshEnd(qint64 revision)
{
    return QString::number(revision) + u'-' + QDateTime::currentDateTimeUtc().toString(momentForm) + u'-' +
           uuidText(QUuid::createUuid());
}

std::optional<QDateTime> momentFrom(const QString &text)
{
    QDateTime moment = QDateTime::fromString(text, momentForm);
    moment.setTimeSpec(Qt::UTC);
    return moment.isValid() ? std::optional(moment) : std::nullopt;
}

} // namespace

std::optional<KeptVersion> KeptVersion::named(const std::string &name)
{
    static const QRegularExpression ofRevision(uR"(\A(\d{1,19})-[0-9A-F-]{36}\z)"_s);
    static const QRegularExpression ofReplaced(
        uR"(\A(?:replaced|merged)-(library|claude|codex)-(?:[0-9a-f]{64}-)?(?:(\d{1,19})-(\d{8}T\d{9}Z)-)?[0-9A-F-]{36}\z)"_s);
    const QString text = QString::fromStdString(name);
    if (const auto match = ofRevision.match(text); match.hasMatch())
        return KeptVersion{.entry = name, .revision = match.captured(1).toLongLong()};
    if (const auto match = ofReplaced.match(text); match.hasMatch())
        return KeptVersion{.entry = name,
                           .kind = HistoryKind::replaced,
                           .origin = fromRawValue<VersionOrigin>(match.captured(1)).value(),
                           .revision = match.captured(2).toLongLong(),
                           .replacedAt = momentFrom(match.captured(3))};
    return std::nullopt;
}

QString revisionEntry(qint64 revision)
{
    return QString::number(revision) + u'-' + uuidText(QUuid::createUuid());
}

QString replacedEntry(VersionOrigin origin, qint64 revision)
{
    return u"replaced-"_s + rawValue(origin) + u'-' + freshEnd(revision);
}

QString mergedPrefix(VersionOrigin origin, const std::string &result)
{
    return u"merged-"_s + rawValue(origin) + u'-' + QString::fromStdString(result) + u'-';
}

QString mergedEntry(VersionOrigin origin, const std::string &result, qint64 revision)
{
    return mergedPrefix(origin, result) + freshEnd(revision);
}

VersionOrigin originOfCopy(TargetKind target)
{
    return target == TargetKind::claude ? VersionOrigin::claude : VersionOrigin::codex;
}

} // namespace vornel
