#include "StrayTexts.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

bool contains(const QList<SkillSummary> &skills, const QUuid &id)
{
    return std::ranges::find(skills, id, &SkillSummary::id) != skills.end();
}

/// All that a draft holds, each text below the path of its file where there are several.
QString allTexts(const KeptDraft &draft)
{
    if (draft.files.isEmpty())
        return draft.text;
    QString all = u"SKILL.md\n\n"_s + draft.text;
    for (const UnsavedFile &file : draft.files)
        all += u"\n\n"_s + file.path + u"\n\n"_s + file.text;
    return all;
}

} // namespace

StrayTexts::StrayTexts(QObject *parent)
    : QObject(parent), m_looking(this, [this](const Answer<Files> &answer) { showAnswer(answer); })
{}

void StrayTexts::componentComplete()
{
    connect(m_model, &AppModel::overviewChanged, this, &StrayTexts::look);
    connect(m_model, &AppModel::selectedSkillIDChanged, this, &StrayTexts::look);
    connect(m_model, &AppModel::isDetailLoadingChanged, this, &StrayTexts::look); // by then its draft is read
    look();
}

QString StrayTexts::notice() const
{
    return isFile() ? (m_failure + u' ' + descriptionOf(m_shown.first())).trimmed() : m_lookFailure;
}

QString StrayTexts::place() const
{
    return isFile() ? pathText(m_shown.first().place) : QString();
}

QUrl StrayTexts::folder() const
{
    return isFile() ? QUrl::fromLocalFile(pathText(m_shown.first().place.parent_path())) : QUrl();
}

void StrayTexts::copy()
{
    using Draft = std::optional<KeptDraft>;
    QCoro::connect(answerOf(m_model->drafts().draft(m_shown.first().id)), this,
                   [this](const Answer<Draft> &answer) {
                       if (const Draft draft = answer.value.value_or(Draft()))
                           QGuiApplication::clipboard()->setText(allTexts(*draft));
                       conclude(answer.outcome);
                   });
}

void StrayTexts::discard(const QString &place)
{
    const auto file =
        std::ranges::find(m_shown, place, [](const DraftFile &shown) { return pathText(shown.place); });
    if (file != m_shown.end())
        QCoro::connect(outcomeOf(m_model->drafts().discardFile(*file)), this,
                       [this](const Outcome &outcome) { conclude(outcome); });
}

void StrayTexts::postpone()
{
    if (isFile())
        m_postponed.append(m_shown.takeFirst());
    m_lookFailure.clear();
    m_failure.clear();
    Q_EMIT changed();
}

void StrayTexts::look()
{
    if (m_model->overview())
        m_looking.ask([this] { return answerOf(m_model->drafts().files()); });
}

void StrayTexts::showAnswer(const Answer<Files> &answer)
{
    if (answer.value)
        show(*answer.value);
    else
        m_lookFailure = u"Les textes non enregistrés n’ont pas pu être cherchés. "_s + answer.outcome.message;
    Q_EMIT changed();
}

bool StrayTexts::isStray(const DraftFile &file) const
{
    const bool isTakenUp =
        !m_model->selection().hasFailedToOpen(file.id) &&
        (file.id == m_model->selectedSkillID() || contains(m_model->overview()->skills, file.id));
    return (file.isSetAside || !isTakenUp) && !m_postponed.contains(file);
}

/// The name of a skill of the library or of the trash; empty for any other.
QString StrayTexts::nameOf(const QUuid &id) const
{
    const WorkspaceOverview overview = *m_model->overview();
    for (const QList<SkillSummary> &skills : {overview.skills, overview.trashedSkills}) {
        const auto found = std::ranges::find(skills, id, &SkillSummary::id);
        if (found != skills.end())
            return found->displayName;
    }
    return {};
}

QString StrayTexts::descriptionOf(const DraftFile &file) const
{
    const QString name = nameOf(file.id);
    const QString owner =
        name.isEmpty() ? u"d’une compétence supprimée"_s : u"de «\u00A0%1\u00A0»"_s.arg(name);
    const QString place = u" Il est gardé ici\u00A0: "_s + pathText(file.place);
    if (file.isSetAside)
        return u"Un texte non enregistré "_s + owner + u" n’a pas pu être lu."_s + place;
    if (name.isEmpty())
        return u"Un texte "_s + owner + u" n’a pas été enregistré."_s + place;
    const QString moment = contains(m_model->overview()->skills, file.id)
                               ? u"dès que cette compétence pourra être ouverte."_s
                               : u"une fois la compétence restaurée depuis la corbeille."_s;
    return u"Un texte "_s + owner + u" n’a pas été enregistré. L’éditeur le reprendra "_s + moment + place;
}

void StrayTexts::show(const Files &files)
{
    m_lookFailure.clear();
    m_shown = files;
    m_shown.removeIf([this](const DraftFile &file) { return !isStray(file); });
}

/// Looks again after an action on the text: one that could not be read has been set aside.
void StrayTexts::conclude(const Outcome &outcome)
{
    m_failure = outcome.message;
    look();
}

} // namespace vornel
