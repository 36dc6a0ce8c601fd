#include "Scenes.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Text/Digest.h>

#include <QTest>

#include <algorithm>
#include <fstream>
#include <sstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace vornel {
namespace {

QByteArray bytesOf(const fs::path &file)
{
    std::stringstream bytes;
    bytes << std::ifstream(file).rdbuf();
    return QByteArray::fromStdString(bytes.str());
}

void photographEdits(const Photographer &photographer, Studio &studio)
{
    studio.model().selectSkill(studio.idOf(u"revue-de-securite"_s));
    photographer.take(u"opening"_s);
    studio.open(u"revue-de-securite"_s);
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
    studio.settle();
}

/// What opens over the editor.
void photographChoices(const Photographer &photographer, Studio &studio)
{
    studio.open(u"revue-de-securite"_s);
    photographer.click(studio.model().category(studio.model().selectedSkill()->manifest.category).name);
    photographer.take(u"editor-category"_s);
    photographer.press(Qt::Key_Escape);
    photographer.click(u"Plus d’actions"_s);
    photographer.take(u"editor-actions"_s);
    photographer.press(Qt::Key_Down);
    photographer.press(Qt::Key_Return);
    Studio::rest();
    photographer.take(u"editor-duplicate"_s);
    photographer.click(u"Annuler"_s);
    Studio::rest();
    photographer.click(u"Plus d’actions"_s);
    photographer.press(Qt::Key_Down);
    photographer.press(Qt::Key_Down);
    photographer.press(Qt::Key_Return);
    Studio::rest();
    photographer.take(u"editor-trash"_s);
    photographer.click(u"Annuler"_s);
    studio.model().closeSkill();
}

/// What is said of a skill beside its text, while it is changed.
void photographProperties(const Photographer &photographer, Studio &studio)
{
    studio.open(u"revue-de-securite"_s);
    photographer.click(u"Propriétés"_s);
    Studio::rest();
    photographer.take(u"editor-properties"_s);
    for (int stop = 0; stop < 4; ++stop)
        photographer.press(Qt::Key_Tab);
    photographer.write(u"ré"_s);
    Studio::rest();
    photographer.take(u"editor-properties-tags"_s);
    photographer.press(Qt::Key_Tab);
    photographer.press(Qt::Key_Return);
    for (int stop = 0; stop < 3; ++stop)
        photographer.press(Qt::Key_Tab);
    photographer.press(Qt::Key_End);
    photographer.write(u"-2"_s);
    Studio::rest();
    photographer.take(u"editor-properties-renamed"_s);
    photographer.press(Qt::Key_Escape);
    photographer.press(Qt::Key_Escape);
    Studio::rest();
    photographer.take(u"editor-properties-unsaved"_s);
    photographer.click(u"Ne pas enregistrer"_s);
    studio.settle();
}

/// What assistants will stumble over in a skill.
void photographProblems(const Photographer &photographer, Studio &studio)
{
    studio.open(u"maquette-vers-composant"_s);
    Studio::rest();
    photographer.click(u"1 erreur, 1 conseil"_s);
    Studio::rest();
    photographer.take(u"editor-problems"_s);
    studio.model().closeSkill();
    studio.settle();
}

void photographPicture(const Photographer &photographer, Studio &studio)
{
    studio.open(u"maquette-vers-composant"_s);
    photographer.click(u"maquette.png"_s);
    Studio::rest();
    photographer.take(u"editor-image"_s);
    studio.model().closeSkill();
    studio.settle();
}

/// Edits both assistants' copies of a skill, as an assistant would.
void editCopies(const Studio &studio)
{
    const fs::path copy = studio.path("claude/audit-accessibilite");
    const QString edited =
        QString::fromUtf8(bytesOf(copy / "SKILL.md")).replace(u"## "_s, u"## Étape\u00A0: "_s);
    std::ofstream(copy / "SKILL.md") << edited.toStdString();
    std::ofstream(copy / "exemples.md") << "# Exemples\n";
    fs::remove_all(studio.path("codex/audit-accessibilite/references"));
}

void photographCopies(const Photographer &photographer, Studio &studio)
{
    editCopies(studio);
    studio.model().reload();
    studio.open(u"audit-accessibilite"_s);
    photographer.take(u"editor-drifted"_s);
    photographer.click(u"Synchroniser"_s);
    Studio::rest();
    photographer.take(u"editor-differences"_s);
    photographer.press(Qt::Key_Space);
    Studio::rest();
    photographer.take(u"editor-differences-chosen"_s);
    photographer.click(u"Fermer"_s);
    studio.model().closeSkill();
    studio.settle();
}

void write(const fs::path &file, const QString &text)
{
    std::ofstream(file) << text.toStdString();
}

/// Both assistants have written into the same lines, and one has deleted what the other has changed.
void photographMerge(const Photographer &photographer, Studio &studio)
{
    const QUuid id = studio.idOf(u"audit-accessibilite"_s);
    studio.model().synchronizeSkill(id);
    studio.quieten();
    studio.open(u"audit-accessibilite"_s);
    const QString text = studio.model().selectedSkill()->skillMD;
    const fs::path claude = studio.path("claude/audit-accessibilite");
    const fs::path codex = studio.path("codex/audit-accessibilite");
    write(claude / "SKILL.md", QString(text).replace(u"## "_s, u"## Étape\u00A0: "_s));
    write(codex / "SKILL.md", QString(text).replace(u"## "_s, u"## Puis\u00A0: "_s));
    write(claude / "references/grille-de-controle.md", u"# Grille\n\n- Contrastes\n"_s);
    fs::remove_all(codex / "references");
    studio.model().reload();
    studio.quieten();
    photographer.click(u"Synchroniser"_s);
    Studio::rest();
    photographer.take(u"editor-both"_s);
    photographer.click(u"Fusionner"_s);
    Studio::rest();
    Studio::rest();
    photographer.take(u"editor-merge"_s);
    photographer.press(Qt::Key_Tab);
    photographer.press(Qt::Key_Return);
    photographer.press(Qt::Key_Backtab);
    photographer.press(Qt::Key_Down);
    Studio::rest();
    photographer.take(u"editor-merge-deleted"_s);
    photographer.press(Qt::Key_Up);
    for (int stop = 0; stop < 3; ++stop)
        photographer.press(Qt::Key_Tab);
    photographer.press(Qt::Key_Return);
    Studio::rest();
    photographer.take(u"editor-merge-text"_s);
    photographer.press(Qt::Key_Escape);
    Studio::rest();
    write(studio.path("VORNEL/skills/audit-accessibilite/SKILL.md"), text + u"\nUne ligne de plus.\n"_s);
    studio.model().reload();
    studio.quieten();
    photographer.take(u"editor-hand-edits"_s);
    studio.model().closeSkill();
    studio.settle();
}

void save(Studio &studio, const QString &text)
{
    studio.model().saveSelectedSkill(text);
    studio.quieten();
}

/// Lets what is kept of the open skill be older, by a day for each revision since.
void backdateHistory(Studio &studio)
{
    const SkillManifest manifest = studio.model().selectedSkill()->manifest;
    const fs::path history = studio.path("VORNEL/.vornel/history") / uuidText(manifest.id).toStdString();
    for (const fs::directory_entry &entry : fs::directory_iterator(history)) {
        const qint64 revision =
            QString::fromStdString(entry.path().filename()).section(u'-', 0, 0).toLongLong();
        const fs::path file = entry.path() / "vornel.json";
        auto kept = RecordJson::decodeDocument<SkillManifest>(bytesOf(file));
        if (revision == 0 || !kept)
            continue;
        kept->updatedAt =
            kept->updatedAt.addSecs(std::min<qint64>(0, revision - manifest.revision + 1) * 90'000);
        std::ofstream(file) << RecordJson::document(RecordJson::encode(*kept)).toStdString();
    }
}

/// A skill that was saved several times, and of which an assistant's edits were replaced.
void photographHistory(const Photographer &photographer, Studio &studio)
{
    studio.open(u"redaction-technique"_s);
    const QString text = studio.model().selectedSkill()->skillMD;
    save(studio, text + u"\nRelire à voix haute.\n"_s);
    write(studio.path("codex/redaction-technique/SKILL.md"), text + u"\nPréférer les phrases courtes.\n"_s);
    write(studio.path("codex/redaction-technique/exemples.md"), u"# Exemples\n"_s);
    studio.model().synchronizeSelectedSkill();
    studio.quieten();
    save(studio, QString(text).replace(u"## "_s, u"## Étape\u00A0: "_s));
    save(studio, text + u"\nRelire à voix haute, puis le lendemain.\n"_s);
    backdateHistory(studio);
    photographer.click(u"Historique"_s);
    Studio::rest();
    photographer.take(u"editor-history"_s);
    photographer.press(Qt::Key_Down);
    Studio::rest();
    photographer.take(u"editor-history-version"_s);
    photographer.press(Qt::Key_Down);
    Studio::rest();
    photographer.take(u"editor-history-replaced"_s);
    photographer.click(u"Depuis la précédente"_s);
    Studio::rest();
    photographer.take(u"editor-history-former"_s);
    studio.model().closeSkill();
    studio.settle();
}

DraftKeeping &drafts(Studio &studio)
{
    return *studio.application().environment.drafts;
}

/// Leaves the skill, and the edits of it.
void abandon(Studio &studio)
{
    const QUuid id = studio.model().selectedSkillID();
    studio.model().closeSkill();
    drafts(studio).discardDraft(id).waitForFinished();
    studio.settle();
}

/// An edited file beside the text, and what can be done with files.
void photographFiles(const Photographer &photographer, Studio &studio)
{
    const std::string path = "references/grille-de-controle.md";
    const QByteArray bytes = bytesOf(studio.path("VORNEL/skills/audit-accessibilite") / path);
    studio.open(u"audit-accessibilite"_s);
    studio.model().openSkill()->draft()->files()->edit(
        {QString::fromStdString(path), QString::fromUtf8(bytes).replace(u"Une copie"_s, u"Une page"_s),
         sha256Of(bytes)});
    photographer.click(u"grille-de-controle.md"_s);
    Studio::rest();
    photographer.take(u"editor-files"_s);
    photographer.click(u"Nouveau fichier, nouveau dossier…"_s);
    Studio::rest();
    photographer.take(u"editor-file-menu"_s);
    photographer.click(u"Nouveau fichier…"_s);
    Studio::rest();
    photographer.take(u"editor-file-name"_s);
    photographer.press(Qt::Key_Escape);
    abandon(studio);
}

/// A script in its colours.
void photographCode(const Photographer &photographer, Studio &studio)
{
    studio.open(u"tests-de-charge"_s);
    photographer.click(u"charge.py"_s);
    Studio::rest();
    photographer.take(u"editor-code"_s);
    studio.model().closeSkill();
}

/// An edit here while the skill is edited, and then removed, in the workspace.
void photographStale(const Photographer &photographer, Studio &studio)
{
    const fs::path kept = studio.path("elsewhere");
    const fs::path skill = studio.path("VORNEL/skills/revue-de-securite");
    fs::copy(skill, kept, fs::copy_options::recursive);
    studio.open(u"revue-de-securite"_s);
    photographer.type(u"Vérifie aussi les dépendances.\n"_s);
    std::ofstream(skill / "SKILL.md", std::ios::app) << "\nUne ligne de plus.\n";
    studio.model().reload();
    studio.quieten();
    photographer.take(u"editor-stale"_s);
    photographer.click(u"Enregistrer"_s);
    photographer.await(u"Fermer"_s);
    photographer.take(u"editor-refused"_s);
    photographer.press(Qt::Key_Escape);
    photographer.click(u"Comparer"_s);
    Studio::rest();
    photographer.take(u"editor-comparison"_s);
    photographer.click(u"Fermer"_s);
    fs::remove_all(skill);
    studio.model().reload();
    studio.quieten();
    photographer.take(u"editor-gone"_s);
    fs::copy(kept, skill, fs::copy_options::recursive);
    abandon(studio);
    studio.model().reload();
    studio.quieten();
}

void keep(const Studio &studio, const QUuid &id, const KeptDraft &draft)
{
    const fs::path folder = studio.path("VORNEL/.vornel/drafts");
    fs::create_directories(folder);
    std::ofstream(folder / (uuidText(id) + u".json"_s).toStdString())
        << RecordJson::document(RecordJson::encode(draft)).toStdString();
}

/// A text that was typed before the program ended; and the same once its skill has changed.
void photographFound(const Photographer &photographer, Studio &studio)
{
    const QUuid id = studio.idOf(u"notes-de-version"_s);
    const QString text = u"# Notes de version\n\nÀ reprendre\u00A0: les ruptures d’abord.\n"_s;
    const QDateTime moment(QDate::currentDate(), QTime(14, 32));
    studio.open(u"notes-de-version"_s);
    const QString saved = studio.model().selectedSkill()->skillMD;
    for (const auto &[base, picture] :
         {std::pair(saved, u"editor-found"_s), std::pair(u"x"_s, u"editor-found-stale"_s)}) {
        studio.model().closeSkill();
        keep(studio, id, {.text = text, .baseDigest = sha256Of(base.toUtf8()), .keptAt = moment});
        studio.open(u"notes-de-version"_s);
        photographer.take(picture);
        abandon(studio);
    }
}

/// A text whose skill is gone.
void photographStray(const Photographer &photographer, Studio &studio)
{
    const QUuid id = QUuid::createUuid();
    keep(studio, id, {.text = u"x"_s, .baseDigest = {}, .keptAt = QDateTime::currentDateTimeUtc()});
    studio.open(u"notes-de-version"_s);
    studio.model().closeSkill();
    Studio::rest();
    photographer.take(u"library-stray"_s);
    drafts(studio).discardDraft(id).waitForFinished();
}

/// A disk that doesn't take what is typed.
void photographUnkept(const Photographer &photographer, Studio &studio)
{
    fs::remove_all(studio.path("VORNEL/.vornel/drafts"));
    std::ofstream(studio.path("VORNEL/.vornel/drafts")) << "x";
    studio.open(u"notes-de-version"_s);
    photographer.type(u"Une ligne de plus.\n"_s);
    QTest::qWait(1'500);
    photographer.take(u"editor-unkept"_s);
    abandon(studio);
    fs::remove(studio.path("VORNEL/.vornel/drafts"));
}

} // namespace

void photographEditor(Photographer &photographer, Studio &studio)
{
    photographEdits(photographer, studio);
    photographChoices(photographer, studio);
    photographProperties(photographer, studio);
    photographProblems(photographer, studio);
    photographFiles(photographer, studio);
    photographCode(photographer, studio);
    photographPicture(photographer, studio);
    photographStale(photographer, studio);
    photographFound(photographer, studio);
    photographStray(photographer, studio);
    photographUnkept(photographer, studio);
    photographHistory(photographer, studio);
    photographCopies(photographer, studio);
    photographMerge(photographer, studio);
}

} // namespace vornel
