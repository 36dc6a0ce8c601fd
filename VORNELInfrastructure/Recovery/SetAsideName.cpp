#include "SetAsideName.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// The slug, unless no skill could have it.
QString validSlug(const QString &slug)
try {
    WorkspaceValidation::validateSlug(slug);
    return slug;
} catch (const VORNELWorkspaceError &) {
    return {};
}

} // namespace

SetAsideName SetAsideName::of(const QString &name)
{
    static const QRegularExpression canonical(uR"(\A[0-9A-F-]{36}-canonical-(.+)\z)"_s);
    static const QRegularExpression copy(
        uR"(\A[0-9A-F-]{36}-(?:(?:removed|replaced)-)?(library|claude|codex)-(.+)\z)"_s);
    static const QRegularExpression entry(uR"(\A(?:replaced|merged)-(library|claude|codex)-)"_s);
    if (const auto match = canonical.match(name); match.hasMatch())
        return {validSlug(match.captured(1)), VersionOrigin::library};
    if (const auto match = copy.match(name); match.hasMatch())
        return {validSlug(match.captured(2)), fromRawValue<VersionOrigin>(match.captured(1))};
    if (const auto match = entry.match(name); match.hasMatch())
        return {{}, fromRawValue<VersionOrigin>(match.captured(1))};
    return {};
}

QString nameOfReplaced(const QString &entry, const QString &slug)
{
    static const QRegularExpression shape(
        uR"(\A(?:replaced|merged)-(library|claude|codex)-.*([0-9A-F-]{36})\z)"_s);
    const auto match = shape.match(entry);
    if (!match.hasMatch() || validSlug(slug).isEmpty())
        return entry;
    return match.captured(2) + u"-replaced-"_s + match.captured(1) + u'-' + slug;
}

} // namespace vornel
