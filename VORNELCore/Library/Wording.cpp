#include "Wording.h"

#include <VORNELCore/Records/ImportModels.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QLocale>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vornel::Wording {

namespace {

/// `format` as in "MMMM yyyy".
QString dayText(const QDate &day, const QString &format)
{
    const QString number = day.day() == 1 ? u"1er"_s : QString::number(day.day());
    return number + u' ' + QLocale(QLocale::French, QLocale::France).toString(day, format);
}

/// With the year where it isn't this one.
QString dateText(const QDate &day, const QDate &today)
{
    return dayText(day, day.year() == today.year() ? u"MMMM"_s : u"MMMM yyyy"_s);
}

/// "a", "a et b", "a, b et c".
QString enumerated(QStringList parts)
{
    const QString last = parts.takeLast();
    return parts.isEmpty() ? last : parts.join(u", "_s) + u" et "_s + last;
}

bool hasKnownEdits(const CopyInspection &copy)
{
    return copy.drift == Drift::edited && !copy.differences.isEmpty();
}

QString driftText(Drift drift)
{
    switch (drift) {
    case Drift::outdated:
        return u"copie périmée"_s;
    case Drift::edited:
        return u"copie modifiée"_s;
    case Drift::none:
    case Drift::unknown:
        break;
    }
    return u"copie différente"_s;
}

} // namespace

QString maturity(Maturity maturity)
{
    switch (maturity) {
    case Maturity::draft:
        return u"Brouillon"_s;
    case Maturity::ready:
        return u"Prêt"_s;
    case Maturity::active:
        return u"Actif"_s;
    case Maturity::obsolete:
        break;
    }
    return u"Obsolète"_s;
}

QStringList maturities()
{
    QStringList texts;
    for (const Maturity each : allCases<Maturity>())
        texts.append(maturity(each));
    return texts;
}

QStringList orders()
{
    return {u"Par catégorie"_s, u"Par nom"_s, u"Par date de modification"_s};
}

QString syncState(SyncState state, Drift drift)
{
    switch (state) {
    case SyncState::inSync:
        return u"à jour"_s;
    case SyncState::drifted:
        return driftText(drift);
    case SyncState::missing:
        return u"copie manquante"_s;
    case SyncState::failed:
        return u"échec"_s;
    case SyncState::unknown:
        break;
    }
    return u"inconnu"_s;
}

QString action(UndoableAction action)
{
    switch (action) {
    case UndoableAction::save:
        return u"enregistrement"_s;
    case UndoableAction::assignment:
        return u"catégorie"_s;
    case UndoableAction::synchronisation:
        return u"synchronisation"_s;
    case UndoableAction::trash:
        return u"corbeille"_s;
    case UndoableAction::adoption:
        return u"adoption"_s;
    case UndoableAction::handEdits:
        return u"prise en compte"_s;
    case UndoableAction::merge:
        return u"fusion"_s;
    case UndoableAction::properties:
        return u"propriétés"_s;
    case UndoableAction::files:
        return u"fichiers"_s;
    case UndoableAction::reversion:
        break;
    }
    return u"retour"_s;
}

QString edits(const QList<CopyInspection> &copies)
{
    QStringList parts;
    for (const CopyInspection &copy : copies) {
        if (!hasKnownEdits(copy))
            continue;
        const qsizetype count = copy.differences.size();
        parts.append(copy.assistant() + (parts.isEmpty() ? u" a modifié "_s + countedFiles(count)
                                                         : u' ' + QString::number(count)));
    }
    return parts.join(u", "_s);
}

QString copies(const QList<CopyInspection> &copies)
{
    QStringList parts{edits(copies)};
    for (const CopyInspection &copy : copies) {
        if (!hasKnownEdits(copy))
            parts.append(copy.assistant() + u"\u00A0: "_s + copy.stateText());
    }
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

QString countedFiles(qsizetype count)
{
    return QString::number(count) + (count < 2 ? u" fichier"_s : u" fichiers"_s);
}

QString countedSkills(qsizetype count)
{
    return QString::number(count) + (count < 2 ? u" compétence"_s : u" compétences"_s);
}

QString severity(ProblemSeverity severity)
{
    return severity == ProblemSeverity::error ? u"erreur"_s : u"conseil"_s;
}

QString countedProblems(qsizetype errors, qsizetype hints)
{
    const auto counted = [](qsizetype count, const QString &noun) {
        return QString::number(count) + u' ' + noun + (count < 2 ? QString() : u"s"_s);
    };
    QStringList parts;
    if (errors > 0)
        parts.append(counted(errors, u"erreur"_s));
    if (hints > 0)
        parts.append(counted(hints, u"conseil"_s));
    return parts.isEmpty() ? u"Aucun problème"_s : parts.join(u", "_s);
}

QString newSkills(const QList<NewSkill> &skills)
{
    QStringList counts;
    QStringList trashed;
    for (const TargetKind target : allCases<TargetKind>()) {
        const auto count = std::ranges::count(skills, target, &NewSkill::target);
        const QString noun = counts.isEmpty()
                                 ? (count < 2 ? u" nouvelle compétence"_s : u" nouvelles compétences"_s)
                                 : QString();
        if (count > 0)
            counts.append(QString::number(count) + noun + u" chez "_s + assistantName(target));
    }
    for (const NewSkill &skill : skills) {
        if (const QString name = u"«\u00A0%1\u00A0»"_s.arg(skill.slug);
            skill.isTrashed && !trashed.contains(name))
            trashed.append(name);
    }
    if (counts.isEmpty() || trashed.isEmpty())
        return counts.join(u" et "_s);
    const QString verb = trashed.size() == 1 ? u" est dans la corbeille."_s : u" sont dans la corbeille."_s;
    return counts.join(u" et "_s) + u". "_s + enumerated(trashed) + verb;
}

QString andOthers(qsizetype count)
{
    return count == 1 ? u"et 1 autre"_s : u"et %1 autres"_s.arg(count);
}

QString age(const QDateTime &instant, const QDateTime &now)
{
    struct Unit
    {
        qint64 seconds;
        QString singular;
        QString plural;
    };
    constexpr qint64 day = 86'400;
    static const std::array units{
        Unit{365 * day, u"an"_s, u"ans"_s},  Unit{30 * day, u"mois"_s, u"mois"_s},
        Unit{day, u"jour"_s, u"jours"_s},    Unit{3'600, u"heure"_s, u"heures"_s},
        Unit{60, u"minute"_s, u"minutes"_s},
    };
    const qint64 seconds = instant.secsTo(now);
    for (const Unit &unit : units) {
        const qint64 count = seconds / unit.seconds;
        if (count > 0)
            return u"il y a %1 %2"_s.arg(count).arg(count == 1 ? unit.singular : unit.plural);
    }
    return u"à l’instant"_s;
}

QString moment(const QDateTime &instant, const QDateTime &now)
{
    constexpr int week = 7;
    if (instant.daysTo(now) < week)
        return age(instant, now);
    return u"le "_s + dayText(instant.toLocalTime().date(), u"MMMM yyyy"_s);
}

QString dayAndTime(const QDateTime &instant, const QDateTime &now)
{
    return dateText(instant.toLocalTime().date(), now.toLocalTime().date()) + u" à "_s + time(instant);
}

QString day(const QDateTime &instant, const QDateTime &now)
{
    const QDate day = instant.toLocalTime().date();
    const QDate today = now.toLocalTime().date();
    if (day == today)
        return u"aujourd’hui"_s;
    return day.addDays(1) == today ? u"hier"_s : dateText(day, today);
}

QString time(const QDateTime &instant)
{
    return instant.toLocalTime().toString(u"HH:mm"_s);
}

QString origin(VersionOrigin origin)
{
    const auto assistant = fromRawValue<TargetKind>(rawValue(origin));
    return assistant ? assistantName(*assistant) : u"VORNEL"_s;
}

QString versionOrigin(const HistoryEntry &version)
{
    if (version.kind == HistoryKind::revision)
        return u"révision %1"_s.arg(version.revision);
    if (version.origin == VersionOrigin::library)
        return u"modifié à la main"_s;
    return u"modifié par "_s + origin(version.origin);
}

QString version(const HistoryEntry &version, const QDateTime &now)
{
    const QString day = Wording::day(version.date, now);
    if (version.kind == HistoryKind::revision)
        return u"%1 %2 · %3"_s.arg(day, time(version.date), versionOrigin(version));
    const QString article = day.at(0).isDigit() ? u"le "_s : QString();
    return u"%1, remplacé %2%3 à %4"_s.arg(versionOrigin(version), article, day, time(version.date));
}

QString countedVersions(qsizetype count)
{
    return QString::number(count) + (count < 2 ? u" version"_s : u" versions"_s);
}

QString historyExtent(const HistoryExtent &extent)
{
    return countedVersions(extent.entries) + u", "_s + fileSize(extent.size);
}

QString fileSize(qint64 bytes)
{
    if (bytes < 1'000)
        return u"%1\u00A0octet%2"_s.arg(bytes).arg(bytes < 2 ? QString() : u"s"_s);
    return QLocale(QLocale::French, QLocale::France)
        .formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat)
        .replace(u' ', u'\u00A0');
}

} // namespace vornel::Wording
