#include "StartingState.h"

#include "WorkspaceState.h"

#include <VORNELCore/Records/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel {

const QString savedText = u"# Démo\n\nLe texte enregistré.\n"_s;

namespace {

/// Creates a skill and saves it until it has reached `revision`.
QUuid grow(LocalWorkspaceService &service, const QString &slug, const QString &category, int revision)
{
    const QString text = u"premier texte de "_s + slug;
    const QUuid id = service.createSkill(requestFor(slug, category, text)).result().manifest.id;
    for (int saved = 1; saved < revision; ++saved)
        service.saveSkill(id, saved, text + u' ' + QString::number(saved + 1)).result();
    return id;
}

void addByHand(const fs::path &folder)
{
    writeFile(folder / "reference/deep/notes.md", "added by hand");
    writeFile(folder / "reference/table.csv", "a,b\n1,2\n");
    writeFile(folder / "run.sh", "#!/bin/sh\n");
    fs::create_directories(folder / "empty");
}

/// Fills a folder that is no skill and isn't VORNEL's.
void writeStrangersFolder(const fs::path &folder)
{
    writeFile(folder / "notes.txt", "a stranger's");
    writeFile(folder / ".hidden/draft", "a stranger's too");
}

std::string freshName()
{
    return uuidText(QUuid::createUuid()).toStdString();
}

/// The name of a file or folder that is still being written or moved.
std::string temporaryName()
{
    return '.' + freshName() + ".tmp";
}

/// Removes what the library has held at a revision.
void forgetRevision(const fs::path &history, const std::string &revision)
{
    for (const fs::directory_entry &entry : fs::directory_iterator(history)) {
        const std::string name = entry.path().filename();
        if (name.starts_with(revision + '-') || name.starts_with("replaced-library-" + revision + '-'))
            fs::remove_all(entry.path());
    }
}

} // namespace

std::unique_ptr<LocalWorkspaceService> startService(const fs::path &folder, std::shared_ptr<FileSystem> files,
                                                    FailureScope scope)
{
    auto service = std::make_unique<LocalWorkspaceService>(std::move(files), scope);
    service->bootstrap(folder / "workspace", folder / "claude", folder / "codex").result();
    return service;
}

void writeAssistantsFolders(const fs::path &folder)
{
    writeFile(folder / "claude/left/SKILL.md", "name: Gauche\ndescription: à gauche");
    writeFile(folder / "claude/left/scripts/deep/left.py", "print('left')");
    writeFile(folder / "codex/right/SKILL.md", "name: Droite");
    writeStrangersFolder(folder / "codex/left");
    for (const char *target : {"claude", "codex"}) {
        writeFile(folder / target / "both/SKILL.md", "the same in both");
        writeFile(folder / target / "clash/SKILL.md", target);
        writeFile(folder / target / "clash/only" / target, target);
        writeFile(folder / target / "Not_A_Slug/SKILL.md", "stays where it is");
    }
}

void buildLibrary(const fs::path &folder)
{
    writeAssistantsFolders(folder);
    const auto service = startService(folder);
    service->createCategory(u"Équipe"_s, u"A1B2C3"_s).result();
    const QUuid demo = grow(*service, u"demo"_s, u"equipe"_s, 3);
    const QUuid second = grow(*service, u"second"_s, u"equipe"_s, 2);
    const QUuid gone = grow(*service, u"gone"_s, u"equipe"_s, 2);
    const QUuid kept = grow(*service, u"kept"_s, SkillCategory::otherID, 1);
    grow(*service, u"bystander"_s, SkillCategory::otherID, 2);
    for (const char *slug : {"demo", "gone", "bystander"})
        addByHand(folder / "workspace/skills" / slug);
    for (const SkillSummary &skill : service->reload().result().skills)
        service->synchronize(skill.id).result();
    service->moveToTrash(QSet<QUuid>{gone, kept}).result();
    service->ignoreNewSkills({{TargetKind::claude, u"left"_s}}).result();

    writeFile(folder / "codex/demo/SKILL.md", "edited by an assistant");
    writeFile(folder / "codex/demo/reference/own.md", "added by an assistant");
    fs::create_hard_link(folder / "codex/demo/reference/own.md", folder / "elsewhere");
    fs::remove_all(folder / "claude/second");
    const fs::path history = folder / "workspace/.vornel/history";
    forgetRevision(history / uuidText(demo).toStdString(), "3");
    forgetRevision(history / uuidText(second).toStdString(), "2");
    writeStrangersFolder(folder / "claude/fresh");
    writeStrangersFolder(folder / "codex/gone");
    writeFile(folder / "text", savedText.toStdString());
}

void buildLongHistory(const fs::path &folder)
{
    buildLibrary(folder);
    const auto service = startService(folder);
    for (const SkillSummary &skill : service->reload().result().skills) {
        for (qint64 revision = skill.revision; revision < 4; ++revision)
            service->saveSkill(skill.id, revision, u"texte %1"_s.arg(revision)).result();
    }
}

void buildEditedLibrary(const fs::path &folder)
{
    buildLibrary(folder);
    const fs::path copy = folder / "claude/demo";
    writeFile(copy / "SKILL.md", "edited by the other assistant");
    writeFile(copy / "reference/table.csv", "a,b\n3,4\n");
    writeFile(copy / "added/by/claude.md", "added by the other assistant");
    fs::remove(copy / "run.sh");
}

const QString setAsideFound = u"00000000-0000-4000-8000-000000000001-removed-claude-found"_s;
const QString setAsideDemo = u"00000000-0000-4000-8000-000000000002-codex-demo"_s;
const QString setAsideNotes = u"notes"_s;

void buildSetAsideLibrary(const fs::path &folder)
{
    buildLibrary(folder);
    const fs::path recovery = folder / "workspace/.vornel/recovery";
    for (const QString &copy : {setAsideFound, setAsideDemo}) {
        writeFile(recovery / pathFromText(copy) / "SKILL.md", "name: Retrouvé");
        addByHand(recovery / pathFromText(copy));
    }
    writeStrangersFolder(recovery / pathFromText(setAsideNotes));
    writeStrangersFolder(folder / "claude/found");
}

void buildOfferedSkills(const fs::path &folder)
{
    buildLibrary(folder);
    for (const char *slug : {"fresh", "demo"}) {
        writeFile(folder / "offered" / slug / "SKILL.md", "name: Offert\ndescription: de quelqu’un");
        addByHand(folder / "offered" / slug);
        writeFile(folder / "offered" / slug / ".hidden/draft", "for nobody");
    }
}

void buildInterruptedLibrary(const fs::path &folder)
{
    buildLibrary(folder);
    const fs::path skills = folder / "workspace/skills";
    const fs::path bookkeeping = folder / "workspace/.vornel";
    fs::rename(skills / "demo", bookkeeping / "recovery" / (freshName() + "-canonical-demo"));
    fs::copy(skills / "bystander", bookkeeping / "recovery" / (freshName() + "-canonical-bystander"),
             fs::copy_options::recursive);
    for (const auto &[slug, skill] : stateBelow(folder).skills) {
        const std::string id = uuidText(skill.manifest.id).toStdString();
        if (slug == "gone")
            fs::rename(bookkeeping / "trash" / id, bookkeeping / "staging" / id);
        else if (slug == "kept")
            writeFile(bookkeeping / "trash" / id / temporaryName(), "half");
    }
    writeFile(bookkeeping / "staging" / freshName() / "SKILL.md", "half");
    writeFile(bookkeeping / "events" / ("trashed-" + freshName() + ".json"), "{}");
    writeFile(bookkeeping / temporaryName(), "half");
    writeFile(bookkeeping / "recovery" / temporaryName() / "SKILL.md", "half");
    writeFile(skills / "second" / temporaryName(), "half");
    writeFile(folder / "claude" / temporaryName() / "SKILL.md", "half");
}

} // namespace vornel
