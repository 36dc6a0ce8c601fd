#include "Scenes.h"

#include <VORNELCore/RecordJson.h>
#include <VORNELCore/SerializedForms.h>

#include <QTest>

#include <fstream>
#include <sstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

void photographEdits(const Photographer &photographer, Stage &stage)
{
    stage.model().selectSkill(stage.idOf(u"revue-de-securite"_s));
    photographer.take(u"opening"_s);
    stage.open(u"revue-de-securite"_s);
    photographer.take(u"editor"_s);
    photographer.press(Qt::Key_F, Qt::ControlModifier);
    photographer.write(u"les"_s);
    photographer.take(u"editor-find"_s);
    photographer.press(Qt::Key_Escape);
    for (int line = 0; line < 10; ++line)
        photographer.press(Qt::Key_Down);
    photographer.type(u"Vérifie aussi les dépendances.\n"_s);
    photographer.take(u"editor-modified"_s);
    photographer.press(Qt::Key_Escape);
    photographer.take(u"editor-unsaved"_s);
    photographer.click(u"Ne pas enregistrer"_s);
    stage.settle();
}

/// What opens over the editor.
void photographChoices(const Photographer &photographer, Stage &stage)
{
    stage.open(u"revue-de-securite"_s);
    photographer.click(stage.model().category(stage.model().selectedSkill()->manifest.category).name);
    photographer.take(u"editor-category"_s);
    photographer.press(Qt::Key_Escape);
    photographer.click(u"Plus d’actions"_s);
    photographer.take(u"editor-actions"_s);
    photographer.press(Qt::Key_Down);
    photographer.press(Qt::Key_Return);
    Stage::rest();
    photographer.take(u"editor-trash"_s);
    photographer.click(u"Annuler"_s);
    stage.model().closeSkill();
}

void photographPicture(const Photographer &photographer, Stage &stage)
{
    stage.open(u"maquette-vers-composant"_s);
    photographer.click(u"maquette.png"_s);
    Stage::rest();
    photographer.take(u"editor-image"_s);
    stage.model().closeSkill();
    stage.settle();
}

/// Edits both assistants' copies of a skill, as an assistant would.
void editCopies(const Stage &stage)
{
    const fs::path copy = stage.path("claude/audit-accessibilite");
    std::stringstream text;
    text << std::ifstream(copy / "SKILL.md").rdbuf();
    const QString edited = QString::fromStdString(text.str()).replace(u"## "_s, u"## Étape\u00A0: "_s);
    std::ofstream(copy / "SKILL.md") << edited.toStdString();
    std::ofstream(copy / "exemples.md") << "# Exemples\n";
    fs::remove_all(stage.path("codex/audit-accessibilite/references"));
}

void photographCopies(const Photographer &photographer, Stage &stage)
{
    editCopies(stage);
    stage.model().reload();
    stage.open(u"audit-accessibilite"_s);
    photographer.take(u"editor-drifted"_s);
    photographer.click(u"Synchroniser"_s);
    Stage::rest();
    photographer.take(u"editor-differences"_s);
    photographer.click(u"Fermer"_s);
    stage.model().closeSkill();
    stage.settle();
}

DraftKeeping &drafts(Stage &stage)
{
    return *stage.application().environment.drafts;
}

/// Leaves the skill, and the edits of it.
void abandon(Stage &stage)
{
    const QUuid id = stage.model().selectedSkillID();
    stage.model().closeSkill();
    drafts(stage).discardDraft(id).waitForFinished();
    stage.settle();
}

/// An edit here while the skill is edited, and then removed, in the workspace.
void photographStale(const Photographer &photographer, Stage &stage)
{
    const fs::path kept = stage.path("elsewhere");
    const fs::path skill = stage.path("VORNEL/skills/revue-de-securite");
    fs::copy(skill, kept, fs::copy_options::recursive);
    stage.open(u"revue-de-securite"_s);
    photographer.type(u"Vérifie aussi les dépendances.\n"_s);
    std::ofstream(skill / "SKILL.md", std::ios::app) << "\nUne ligne de plus.\n";
    stage.model().reload();
    stage.quieten();
    photographer.take(u"editor-stale"_s);
    photographer.click(u"Comparer"_s);
    Stage::rest();
    photographer.take(u"editor-comparison"_s);
    photographer.click(u"Fermer"_s);
    fs::remove_all(skill);
    stage.model().reload();
    stage.quieten();
    photographer.take(u"editor-gone"_s);
    fs::copy(kept, skill, fs::copy_options::recursive);
    abandon(stage);
    stage.model().reload();
    stage.quieten();
}

void keep(const Stage &stage, const QUuid &id, const KeptDraft &draft)
{
    const fs::path folder = stage.path("VORNEL/.vornel/drafts");
    fs::create_directories(folder);
    std::ofstream(folder / (uuidText(id) + u".json"_s).toStdString())
        << RecordJson::document(RecordJson::encode(draft)).toStdString();
}

/// A text that was typed before the program ended; and the same once its skill has changed.
void photographFound(const Photographer &photographer, Stage &stage)
{
    const QUuid id = stage.idOf(u"notes-de-version"_s);
    const QString text = u"# Notes de version\n\nÀ reprendre\u00A0: les ruptures d’abord.\n"_s;
    const QDateTime moment(QDate::currentDate(), QTime(14, 32));
    stage.open(u"notes-de-version"_s);
    const QString saved = stage.model().selectedSkill()->skillMD;
    for (const auto &[base, picture] :
         {std::pair(saved, u"editor-found"_s), std::pair(u"x"_s, u"editor-found-stale"_s)}) {
        stage.model().closeSkill();
        keep(stage, id, {.text = text, .baseDigest = KeptDraft::digestOf(base), .keptAt = moment});
        stage.open(u"notes-de-version"_s);
        photographer.take(picture);
        abandon(stage);
    }
}

/// A text whose skill is gone.
void photographStray(const Photographer &photographer, Stage &stage)
{
    const QUuid id = QUuid::createUuid();
    keep(stage, id, {.text = u"x"_s, .baseDigest = {}, .keptAt = QDateTime::currentDateTimeUtc()});
    stage.open(u"notes-de-version"_s);
    stage.model().closeSkill();
    Stage::rest();
    photographer.take(u"library-stray"_s);
    drafts(stage).discardDraft(id).waitForFinished();
}

/// A disk that doesn't take what is typed.
void photographUnkept(const Photographer &photographer, Stage &stage)
{
    fs::remove_all(stage.path("VORNEL/.vornel/drafts"));
    std::ofstream(stage.path("VORNEL/.vornel/drafts")) << "x";
    stage.open(u"notes-de-version"_s);
    photographer.type(u"Une ligne de plus.\n"_s);
    QTest::qWait(1'500);
    photographer.take(u"editor-unkept"_s);
    abandon(stage);
    fs::remove(stage.path("VORNEL/.vornel/drafts"));
}

} // namespace

void photographEditor(Photographer &photographer, Stage &stage)
{
    photographEdits(photographer, stage);
    photographChoices(photographer, stage);
    photographPicture(photographer, stage);
    photographStale(photographer, stage);
    photographFound(photographer, stage);
    photographStray(photographer, stage);
    photographUnkept(photographer, stage);
    photographCopies(photographer, stage);
}

} // namespace vornel
