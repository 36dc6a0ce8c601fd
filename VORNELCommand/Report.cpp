#include "Report.h"

#include "Terminal.h"

#include <VORNELCore/LibraryQuery.h>
#include <VORNELCore/SerializedForms.h>

#include <QLocale>

#include <algorithm>

namespace vornel::Report {

using Terminal::Cell;
using Terminal::Colour;

namespace {

Cell stateCell(SyncState state)
{
    switch (state) {
    case SyncState::inSync:
        return {QStringLiteral("à jour"), Colour::Success};
    case SyncState::drifted:
        return {QStringLiteral("copie modifiée"), Colour::Warning};
    case SyncState::missing:
        return {QStringLiteral("copie manquante"), Colour::Warning};
    case SyncState::failed:
        return {QStringLiteral("échec"), Colour::Danger};
    case SyncState::unknown:
        break;
    }
    return {QStringLiteral("inconnu"), Colour::Muted};
}

QString maturityLabel(Maturity maturity)
{
    switch (maturity) {
    case Maturity::draft:
        return QStringLiteral("Brouillon");
    case Maturity::ready:
        return QStringLiteral("Prêt");
    case Maturity::active:
        return QStringLiteral("Actif");
    case Maturity::obsolete:
        break;
    }
    return QStringLiteral("Obsolète");
}

QString assistantName(TargetKind kind)
{
    return kind == TargetKind::claude ? QStringLiteral("Claude") : QStringLiteral("Codex");
}

QString blockedReason(const QString &reason)
{
    static const QHash<QString, QString> sentences{
        {QStringLiteral("symlinkUnsupported"), QStringLiteral("contient un lien symbolique")},
        {QStringLiteral("invalidPath"), QStringLiteral("le nom du dossier n’est pas un slug valide")},
        {QStringLiteral("missingSkillFile"), QStringLiteral("ne contient pas de fichier SKILL.md")},
        {QStringLiteral("unsafeContent"), QStringLiteral("contient un élément qui ne peut pas être importé")},
        {QStringLiteral("unreadable"), QStringLiteral("ne peut pas être lu")},
    };
    return sentences.value(reason, reason);
}

/// "1 compétence", "2 compétences".
QString counted(qsizetype count, const QString &singular, const QString &plural)
{
    return QString::number(count) + u' ' + (count < 2 ? singular : plural);
}

QString countedSkills(qsizetype count)
{
    return counted(count, QStringLiteral("compétence"), QStringLiteral("compétences"));
}

QString localDate(const QDateTime &date)
{
    return date.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

QString oneLine(const QString &text)
{
    return text.simplified();
}

QString heading(const QString &title, qsizetype count)
{
    return Terminal::coloured(title + u" (" + QString::number(count) + u")\n", Colour::Muted);
}

} // namespace

QString overview(const WorkspaceOverview &overview)
{
    QString text = QStringLiteral("Workspace : ") + Terminal::printable(overview.workspaceText()) + u'\n' +
                   countedSkills(overview.skills.size());
    if (!overview.trashedSkills.isEmpty())
        text += u", " + QString::number(overview.trashedSkills.size()) + u" dans la corbeille";
    text += u"\n\n";

    const QList<SkillSummary> attention = LibraryQuery::needsAttention(overview);
    if (attention.isEmpty())
        return text + Terminal::coloured(QStringLiteral("Tout est à jour"), Colour::Success) + u'\n';
    QList<QList<Cell>> rows;
    for (const SkillSummary &skill : attention)
        rows.append({{skill.slug}, stateCell(skill.syncState)});
    return text + Terminal::coloured(QStringLiteral("Attention requise"), Colour::Warning) + u'\n' +
           Terminal::table(rows);
}

QString skills(const QList<SkillSummary> &skills, const QList<SkillCategory> &categories)
{
    QHash<QString, QString> names;
    for (const SkillCategory &category : categories)
        names.insert(category.id, category.name);
    QList<QList<Cell>> rows;
    for (const SkillSummary &skill : skills)
        rows.append({{skill.slug},
                     {oneLine(skill.displayName)},
                     {oneLine(names.value(skill.category, skill.category))},
                     {maturityLabel(skill.maturity)},
                     stateCell(skill.syncState)});
    return rows.isEmpty() ? QStringLiteral("Aucune compétence\n") : Terminal::table(rows);
}

QString detail(const SkillDetail &detail)
{
    const SkillManifest &manifest = detail.manifest;
    const QString head = Terminal::table({
        {{QStringLiteral("Nom"), Colour::Muted}, {oneLine(manifest.displayName)}},
        {{QStringLiteral("Slug"), Colour::Muted}, {manifest.slug}},
        {{QStringLiteral("Identifiant"), Colour::Muted}, {uuidText(manifest.id)}},
        {{QStringLiteral("Résumé"), Colour::Muted}, {oneLine(manifest.summary)}},
        {{QStringLiteral("Catégorie"), Colour::Muted}, {oneLine(manifest.category)}},
        {{QStringLiteral("Mots-clés"), Colour::Muted}, {oneLine(manifest.tags.join(QStringLiteral(", ")))}},
        {{QStringLiteral("Maturité"), Colour::Muted}, {maturityLabel(manifest.maturity)}},
        {{QStringLiteral("Révision"), Colour::Muted}, {QString::number(manifest.revision)}},
        {{QStringLiteral("Création"), Colour::Muted}, {localDate(manifest.createdAt)}},
        {{QStringLiteral("Modification"), Colour::Muted}, {localDate(manifest.updatedAt)}},
        {{QStringLiteral("Copies"), Colour::Muted}, stateCell(detail.syncState)},
    });
    QList<QList<Cell>> files;
    for (const QString &file : detail.relativeFiles)
        files.append({{QStringLiteral(" ")}, {file}});
    return head + u'\n' + heading(QStringLiteral("Fichiers"), files.size()) + Terminal::table(files) + u'\n' +
           Terminal::printable(detail.skillMD) + (detail.skillMD.endsWith(u'\n') ? u"" : u"\n");
}

QString states(const QList<SkillDetail> &details)
{
    QList<QList<Cell>> rows;
    for (const SkillDetail &skill : details)
        rows.append({{skill.manifest.slug},
                     {u"révision " + QString::number(skill.manifest.revision)},
                     stateCell(skill.syncState)});
    return rows.isEmpty() ? QStringLiteral("Aucune compétence\n") : Terminal::table(rows);
}

QString plan(const ImportPlan &plan)
{
    QList<QList<Cell>> candidates;
    for (const ImportCandidate &candidate : plan.candidates)
        candidates.append({{QStringLiteral(" ")},
                           {candidate.slug},
                           {candidate.classification == ImportClassification::identical
                                ? QStringLiteral("identique dans les deux dossiers")
                                : assistantName(candidate.source) + u" seulement"}});
    QList<QList<Cell>> collisions;
    for (const ImportCollision &collision : plan.collisions)
        collisions.append({{QStringLiteral(" ")},
                           {collision.slug, Colour::Warning},
                           {QStringLiteral("contenus différents dans Claude et Codex")}});
    QList<QList<Cell>> blocked;
    for (const BlockedImport &entry : plan.blocked)
        blocked.append({{QStringLiteral(" ")},
                        {entry.name, Colour::Danger},
                        {assistantName(entry.source)},
                        {blockedReason(entry.reason)}});

    QString text;
    for (const auto &[title, rows] : {std::pair{QStringLiteral("À importer"), candidates},
                                      std::pair{QStringLiteral("Collisions"), collisions},
                                      std::pair{QStringLiteral("Bloqués"), blocked}}) {
        if (!rows.isEmpty())
            text += heading(title, rows.size()) + Terminal::table(rows);
    }
    return text.isEmpty() ? QStringLiteral("Rien à importer\n") : text;
}

QString categories(const WorkspaceOverview &overview)
{
    QList<QList<Cell>> rows;
    for (const SkillCategory &category : overview.categories) {
        const auto count = std::ranges::count(overview.skills, category.id, &SkillSummary::category);
        rows.append({{category.id},
                     {oneLine(category.name)},
                     {category.colorHex},
                     {countedSkills(count)}});
    }
    return Terminal::table(rows);
}

QString trash(const WorkspaceOverview &overview)
{
    if (overview.trashedSkills.isEmpty())
        return QStringLiteral("La corbeille est vide\n");
    QList<QList<Cell>> rows;
    for (const SkillSummary &skill : overview.trashedSkills)
        rows.append({{QStringLiteral(" ")}, {skill.slug}, {oneLine(skill.displayName)}});
    return heading(QStringLiteral("Corbeille"), rows.size()) + Terminal::table(rows);
}

} // namespace vornel::Report
