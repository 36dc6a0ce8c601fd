#pragma once

#include <VORNELCore/Records/CopyInspection.h>
#include <VORNELCore/Records/HistoryRecords.h>
#include <VORNELCore/Records/NewSkill.h>

#include <QDateTime>
#include <QStringList>

/// What the user reads about the domain's values, in French.
namespace vornel::Wording {

/// "Brouillon", "Prêt", "Actif", "Obsolète".
QString maturity(Maturity maturity);

/// The names of all maturities, in their order.
QStringList maturities();

/// The names of the library's orders, in theirs.
QStringList orders();

/// In lower case: "à jour", "copie manquante". A drifted state is named after its cause: "copie modifiée".
QString syncState(SyncState state, Drift drift = Drift::unknown);

/// "enregistrement", "corbeille".
QString action(UndoableAction action);

/// Who has changed what: "Claude a modifié 2 fichiers, Codex 1"; empty where no edits of copies are known.
QString edits(const QList<CopyInspection> &copies);

/// How copies stand, those with edits first: "Claude a modifié 2 fichiers · Codex : copie manquante".
QString copies(const QList<CopyInspection> &copies);

/// "1 fichier", "2 fichiers".
QString countedFiles(qsizetype count);

/// "1 compétence", "2 compétences".
QString countedSkills(qsizetype count);

/// "erreur", "conseil".
QString severity(ProblemSeverity severity);

/// "2 erreurs, 1 conseil"; "Aucun problème" for none.
QString countedProblems(qsizetype errors, qsizetype hints);

/// "2 nouvelles compétences chez Claude et 1 chez Codex. « audit » est dans la corbeille."; empty for none.
QString newSkills(const QList<NewSkill> &skills);

/// "et 1 autre", "et 2 autres": after the first ones of a list.
QString andOthers(qsizetype count);

/// How long ago `instant` was at `now`, in its largest whole unit: "à l’instant", "il y a 3 jours".
QString age(const QDateTime &instant, const QDateTime &now);

/// The age of an instant of the last seven days, the day of an earlier one: "il y a 3 jours",
/// "le 1er mars 2026".
QString moment(const QDateTime &instant, const QDateTime &now);

/// The day and the time where the user is, with the year where it isn't that of `now`: "22 novembre à 14:32",
/// "1er mars 2025 à 09:05".
QString dayAndTime(const QDateTime &instant, const QDateTime &now);

/// The day where the user is: "aujourd’hui", "hier", "3 mars", with the year where it isn't that of `now`;
/// and the time there: "14:32".
QString day(const QDateTime &instant, const QDateTime &now);
QString time(const QDateTime &instant);

/// Whose work something is: "Claude", "Codex", "VORNEL".
QString origin(VersionOrigin origin);

/// "révision 7", "modifié par Claude".
QString versionOrigin(const HistoryEntry &version);

/// A version and its moment: "aujourd’hui 14:32 · révision 7", "modifié par Claude, remplacé le 3 mars à
/// 14:32".
QString version(const HistoryEntry &version, const QDateTime &now);

/// "1 version", "2 versions".
QString countedVersions(qsizetype count);

/// "48 versions, 12,4 Mo".
QString historyExtent(const HistoryExtent &extent);

/// "812 octets", "1,4 ko".
QString fileSize(qint64 bytes);

} // namespace vornel::Wording
