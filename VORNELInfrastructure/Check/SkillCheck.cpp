#include "SkillCheck.h"

#include "FileCheck.h"
#include "FrontMatterRules.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QList<SkillProblem> lengthProblems(const QString &text)
{
    constexpr qsizetype mostLines = 500;
    const qsizetype lines = text.count(u'\n') + (text.isEmpty() || text.endsWith(u'\n') ? 0 : 1);
    if (lines <= mostLines)
        return {};
    return {
        {.rule = u"text-too-long"_s,
         .severity = ProblemSeverity::hint,
         .path = QString::fromLatin1(SkillFiles::text),
         .line = mostLines + 1,
         .message =
             u"Le texte compte %1 lignes, que les assistants lisent toutes. Au-delà de 500, placez ce qui "
             "ne sert pas toujours dans d’autres fichiers, avec un lien vers eux."_s.arg(lines)}};
}

QList<SkillProblem> unreadable(const std::exception &error)
{
    return {{.rule = u"skill-unreadable"_s,
             .path = QString::fromLatin1(SkillFiles::text),
             .message =
                 u"La compétence ne peut pas être lue en entier. Rendez lisible ce qui suit, ou retirez-le "
                 "du dossier\u00A0: "_s +
                 errorMessage(error)}};
}

QList<SkillProblem> foundIn(const Workspace &workspace, const SkillRecord &skill,
                            const std::optional<QString> &otherText)
try {
    const SkillFolderStore store(workspace);
    const QString text = otherText ? *otherText : store.readSkillMD(skill.folder, skill.manifest.slug);
    const FileTreeSnapshot tree = SecureFileTree::snapshot(workspace.files, skill.folder,
                                                           TreeFilter::excludingManifest, &workspace.digests);
    return frontMatterProblems(readFrontMatter(text), skill.manifest.slug) + lengthProblems(text) +
           FileCheck(store, tree, text).run();
} catch (const std::exception &error) {
    return unreadable(error);
}

QList<SkillProblem> problemsOf(const Workspace &workspace, const SkillRecord &skill,
                               const std::optional<QString> &otherText = {})
{
    QList<SkillProblem> problems = foundIn(workspace, skill, otherText);
    for (SkillProblem &problem : problems)
        problem.slug = skill.manifest.slug;
    std::ranges::stable_sort(
        problems, {}, [](const SkillProblem &problem) { return std::tie(problem.path, problem.line); });
    return problems;
}

/// The skills that are meant, in their order.
QList<SkillRecord> chosen(const QList<SkillRecord> &active, const QList<QUuid> &ids)
{
    if (ids.isEmpty())
        return byName(active);
    QList<SkillRecord> found;
    for (const QUuid &id : ids)
        found.append(findRecord(active, id));
    return found;
}

} // namespace

QList<SkillProblem> checkSkills(const Workspace &workspace, const QList<QUuid> &ids)
{
    QList<SkillProblem> all;
    for (const QList<SkillProblem> &problems :
         parallelMap(chosen(activeManifests(workspace), ids),
                     [&](const SkillRecord &skill) { return problemsOf(workspace, skill); }))
        all.append(problems);
    return all;
}

QList<SkillProblem> checkText(const Workspace &workspace, const QUuid &id, const QString &text)
{
    return problemsOf(workspace, findRecord(activeManifests(workspace), id), text);
}

} // namespace vornel
