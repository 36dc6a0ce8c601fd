#include "Report.h"

#include "Cells.h"

#include <VORNELCore/Library/LibraryQuery.h>
#include <VORNELCore/Library/Wording.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel::Report {

using Terminal::Cell;
using Terminal::Colour;

namespace {

Cell stateCell(SyncState state, Drift drift)
{
    const QString text = Wording::syncState(state, drift);
    switch (state) {
    case SyncState::inSync:
        return {text, Colour::Success};
    case SyncState::drifted:
    case SyncState::missing:
        return {text, Colour::Warning};
    case SyncState::failed:
        return {text, Colour::Danger};
    case SyncState::unknown:
        break;
    }
    return {text, Colour::Muted};
}

/// The state of a skill, or who has edited its copies. `record` is its summary or its detail.
template <typename Record>
Cell stateCell(const QUuid &id, const Record &record, const SkillDrift &drift)
{
    if (record.syncState != SyncState::drifted)
        return stateCell(record.syncState, Drift::none);
    const QString edits = Wording::edits(drift.copies(id));
    return edits.isEmpty() ? stateCell(record.syncState, drift.of(id)) : Cell{edits, Colour::Warning};
}

/// One row for each skill; `lastCell` makes the last cell of each row.
template <typename LastCell>
QString skillTable(const QList<SkillSummary> &skills, const QList<SkillCategory> &categories,
                   const LastCell &lastCell)
{
    QHash<QString, QString> names;
    for (const SkillCategory &category : categories)
        names.insert(category.id, category.name);
    QList<QList<Cell>> rows;
    for (const SkillSummary &skill : skills)
        rows.append({{skill.slug},
                     {skill.displayName},
                     {names.value(skill.category, skill.category)},
                     {Wording::maturity(skill.maturity)},
                     lastCell(skill)});
    return rows.isEmpty() ? u"Aucune compétence\n"_s : Terminal::table(rows);
}

QList<Cell> candidateRow(const ImportCandidate &candidate)
{
    const bool isIdentical = candidate.classification == ImportClassification::identical;
    return {{},
            {candidate.slug},
            {isIdentical ? u"identique dans les deux dossiers"_s
                         : assistantName(candidate.source) + u" seulement"_s}};
}

QString blockedSection(const ImportPlan &plan)
{
    QList<QList<Cell>> rows;
    for (const BlockedImport &entry : plan.blocked)
        rows.append({{}, {entry.name, Colour::Danger}, {assistantName(entry.source)}, {entry.reasonText()}});
    return section(u"Bloqué"_s, rows);
}

/// As much of a name as tells it apart from its neighbours among all of them, and eight characters at least.
QString shortened(const QString &name, const QStringList &sorted)
{
    const auto shared = [&name](const QString &other) {
        const auto [end, otherEnd] = std::ranges::mismatch(name, other);
        return end - name.begin();
    };
    qsizetype length = 8;
    const qsizetype index = sorted.indexOf(name);
    for (const qsizetype neighbour : {index - 1, index + 1}) {
        if (neighbour >= 0 && neighbour < sorted.size())
            length = std::max<qsizetype>(length, shared(sorted.at(neighbour)) + 1);
    }
    return name.left(length);
}

} // namespace

QString overview(const WorkspaceOverview &overview, const SkillDrift &drift)
{
    QString text = u"Workspace\u00A0: "_s + Terminal::printable(overview.workspaceText()) + u'\n' +
                   Wording::countedSkills(overview.skills.size());
    if (!overview.trashedSkills.isEmpty())
        text += u", "_s + QString::number(overview.trashedSkills.size()) + u" dans la corbeille"_s;
    text += u"\n\n"_s;

    const QList<SkillSummary> attention = LibraryQuery::needsAttention(overview);
    if (attention.isEmpty())
        return text + Terminal::coloured(u"Tout est à jour"_s, Colour::Success) + u'\n';
    QList<QList<Cell>> rows;
    for (const SkillSummary &skill : attention)
        rows.append({{skill.slug}, stateCell(skill.id, skill, drift)});
    return text + Terminal::coloured(u"Attention requise"_s, Colour::Warning) + u'\n' + Terminal::table(rows);
}

QString newSkills(const QList<NewSkill> &skills)
{
    return skills.isEmpty() ? QString() : Terminal::printable(Wording::newSkills(skills)) + u'\n';
}

QString editedByHand(const QStringList &slugs)
{
    const QString label =
        slugs.size() == 1 ? u"Modifiée à la main\u00A0: "_s : u"Modifiées à la main\u00A0: "_s;
    return slugs.isEmpty() ? QString() : label + slugs.join(u", "_s) + u'\n';
}

QString conflicts(const QStringList &paths)
{
    QList<QList<Cell>> rows;
    for (const QString &path : paths)
        rows.append({{}, {path, Colour::Danger}});
    return section(u"En conflit"_s, rows) +
           u"Rien n’a été changé. --prefer retient la version d’un assistant pour ces fichiers.\n"_s;
}

QString skills(const QList<SkillSummary> &skills, const QList<SkillCategory> &categories,
               const SkillDrift &drift)
{
    return skillTable(skills, categories,
                      [&drift](const SkillSummary &skill) { return stateCell(skill.id, skill, drift); });
}

QString trashedSkills(const QList<SkillSummary> &skills, const QList<SkillCategory> &categories,
                      const QHash<QUuid, QDateTime> &dates)
{
    return skillTable(skills, categories, [&dates](const SkillSummary &skill) {
        return Cell{localDate(dates.value(skill.id)), Colour::Muted};
    });
}

QString detail(const SkillDetail &detail, const SkillDrift &drift)
{
    const SkillManifest &manifest = detail.manifest;
    const QString head = Terminal::table({
        {{u"Nom"_s, Colour::Muted}, {manifest.displayName}},
        {{u"Identifiant"_s, Colour::Muted}, {manifest.slug}},
        {{u"UUID"_s, Colour::Muted}, {uuidText(manifest.id)}},
        {{u"Résumé"_s, Colour::Muted}, {manifest.summary}},
        {{u"Catégorie"_s, Colour::Muted}, {manifest.category}},
        {{u"Mots-clés"_s, Colour::Muted}, {manifest.tags.join(u", "_s)}},
        {{u"Maturité"_s, Colour::Muted}, {Wording::maturity(manifest.maturity)}},
        {{u"Révision"_s, Colour::Muted}, {QString::number(manifest.revision)}},
        {{u"Création"_s, Colour::Muted}, {localDate(manifest.createdAt)}},
        {{u"Modification"_s, Colour::Muted}, {localDate(manifest.updatedAt)}},
        {{u"Copies"_s, Colour::Muted}, stateCell(manifest.id, detail, drift)},
    });
    QList<QList<Cell>> files;
    for (const QString &file : detail.relativeFiles)
        files.append({{u""_s}, {file}});
    return head + u'\n' + section(u"Fichiers"_s, files) + u'\n' + Terminal::printable(detail.skillMD) +
           (detail.skillMD.endsWith(u'\n') ? u""_s : u"\n"_s);
}

QString copies(const QList<CopyInspection> &copies)
{
    QList<QList<Cell>> rows;
    for (const CopyInspection &copy : copies) {
        rows.append({{copy.assistant()}, stateCell(copy.state, copy.drift)});
        if (copy.drift == Drift::outdated)
            rows.append({{}, {u"rien n’y a été modifié, c’est le dossier de VORNEL qui a changé"_s}});
        if (!copy.reason.isEmpty())
            rows.append({{}, {copy.reason + u" ("_s + copy.shownPath() + u')'}});
        for (const FileDifference &difference : copy.differences)
            rows.append({{}, differenceCell(difference)});
    }
    return Terminal::table(rows);
}

QString comparison(const TargetComparison &comparison)
{
    QList<QList<Cell>> folders;
    for (const ComparedFolder &folder : {comparison.claude, comparison.codex}) {
        folders.append({{folder.assistant()},
                        {Wording::countedFiles(folder.fileCount)},
                        {Wording::fileSize(folder.size)},
                        {folder.modifiedAt ? localDate(*folder.modifiedAt) : QString(), Colour::Muted}});
        if (folder.isNewer)
            folders.last().append({u"le plus récent"_s, Colour::Success});
    }
    QList<QList<Cell>> files;
    for (const FileDifference &difference : comparison.differences)
        files.append({differenceCell(difference)});
    return Terminal::table(folders) + (files.isEmpty() ? u"Aucune différence\n"_s : Terminal::table(files));
}

QString states(const QList<SkillDetail> &details, const SkillDrift &drift)
{
    QList<QList<Cell>> rows;
    for (const SkillDetail &skill : details)
        rows.append({{skill.manifest.slug},
                     {u"révision "_s + QString::number(skill.manifest.revision)},
                     stateCell(skill.manifest.id, skill, drift)});
    return rows.isEmpty() ? u"Aucune compétence\n"_s : Terminal::table(rows);
}

QString state(const SkillDetail &detail, const SkillDrift &drift)
{
    return states({detail}, drift);
}

QString plan(const ImportPlan &plan)
{
    QList<QList<Cell>> candidates;
    for (const ImportCandidate &candidate : plan.candidates)
        candidates.append(candidateRow(candidate));
    QList<QList<Cell>> collisions;
    for (const ImportCollision &collision : plan.collisions)
        collisions.append(
            {{}, {collision.slug, Colour::Warning}, {u"contenus différents dans Claude et Codex"_s}});
    const QString text =
        section(u"À importer"_s, candidates) + section(u"Collisions"_s, collisions) + blockedSection(plan);
    return text.isEmpty() ? u"Rien à importer\n"_s : text;
}

QString imported(const ImportPlan &plan)
{
    QList<QList<Cell>> rows;
    for (const ImportCandidate &candidate : plan.candidates)
        rows.append(candidateRow(candidate));
    for (const ImportCollision &collision : plan.collisions) {
        const bool keepsClaude = collision.choice == CollisionChoice::claude;
        rows.append({{}, {collision.slug}, {keepsClaude ? u"version de Claude"_s : u"version de Codex"_s}});
    }
    std::ranges::stable_sort(rows, {}, [](const QList<Cell> &row) { return row[1].text; });
    const QString text = section(u"Importé"_s, rows) + blockedSection(plan);
    return text.isEmpty() ? u"Rien à importer\n"_s : text;
}

QString categories(const WorkspaceOverview &overview)
{
    QList<QList<Cell>> rows;
    for (const SkillCategory &category : overview.categories) {
        const auto count = std::ranges::count(overview.skills, category.id, &SkillSummary::category);
        rows.append({{category.id}, {category.name}, {category.colorHex}, {Wording::countedSkills(count)}});
    }
    return Terminal::table(rows);
}

QString trash(const WorkspaceOverview &overview, const QHash<QUuid, QDateTime> &dates)
{
    if (overview.trashedSkills.isEmpty())
        return u"La corbeille est vide\n"_s;
    QList<QList<Cell>> rows;
    for (const SkillSummary &skill : overview.trashedSkills)
        rows.append(
            {{u""_s}, {skill.slug}, {skill.displayName}, {localDate(dates.value(skill.id)), Colour::Muted}});
    return section(u"Corbeille"_s, rows);
}

QString setAsideCopies(const QList<SetAsideCopy> &copies)
{
    QStringList ids;
    for (const SetAsideCopy &copy : copies)
        ids.append(copy.id);
    ids.sort();
    QList<QList<Cell>> rows;
    for (const SetAsideCopy &copy : copies) {
        rows.append({{shortened(copy.id, ids)},
                     {copy.slug},
                     {copy.originText()},
                     {localDate(copy.date), Colour::Muted},
                     {copy.contentText()},
                     {copy.reason, Colour::Warning}});
    }
    return rows.isEmpty() ? u"Aucune copie mise de côté\n"_s : Terminal::table(rows);
}

} // namespace vornel::Report
