#include "StrayTexts.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QClipboard>
#include <QCoro/QCoroFuture>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

bool contains(const QList<SkillSummary> &skills, const QUuid &id)
{
    return std::ranges::find(skills, id, &SkillSummary::id) != skills.end();
}

} // namespace

void StrayTexts::componentComplete()
{
    const auto lookAgain = [this] { look(this, m_model); };
    connect(m_model, &AppModel::overviewChanged, this, lookAgain);
    connect(m_model, &AppModel::selectedSkillIDChanged, this, lookAgain);
    connect(m_model, &AppModel::isDetailLoadingChanged, this, lookAgain); // by then its draft is read
    lookAgain();
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
    copyText(this, m_model, m_shown.first().id);
}

void StrayTexts::discard(const QString &place)
{
    const auto file =
        std::ranges::find(m_shown, place, [](const DraftFile &shown) { return pathText(shown.place); });
    if (file != m_shown.end())
        deleteFile(this, m_model, *file);
}

void StrayTexts::postpone()
{
    if (isFile())
        m_postponed.append(m_shown.takeFirst());
    m_lookFailure.clear();
    m_failure.clear();
    Q_EMIT changed();
}

QCoro::Task<> StrayTexts::look(QPointer<StrayTexts> self, AppModel *model)
{
    if (!model->overview())
        co_return;
    try {
        const QList<DraftFile> files = co_await model->drafts().files();
        if (!self.isNull())
            self->show(files);
    } catch (const std::exception &error) {
        if (!self.isNull())
            self->m_lookFailure =
                u"Les textes non enregistrés n’ont pas pu être cherchés. "_s + AppModel::message(error);
    }
    if (!self.isNull())
        Q_EMIT self->changed();
}

QCoro::Task<> StrayTexts::copyText(QPointer<StrayTexts> self, AppModel *model, QUuid id)
{
    QString failure;
    try {
        if (const auto draft = co_await model->drafts().draft(id))
            QGuiApplication::clipboard()->setText(draft->text);
    } catch (const std::exception &error) {
        failure = AppModel::message(error);
    }
    if (!self.isNull())
        self->conclude(failure);
}

QCoro::Task<> StrayTexts::deleteFile(QPointer<StrayTexts> self, AppModel *model, DraftFile file)
{
    QString failure;
    try {
        co_await model->drafts().discardFile(file);
    } catch (const std::exception &error) {
        failure = AppModel::message(error);
    }
    if (!self.isNull())
        self->conclude(failure);
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

void StrayTexts::show(const QList<DraftFile> &files)
{
    m_lookFailure.clear();
    m_shown = files;
    m_shown.removeIf([this](const DraftFile &file) { return !isStray(file); });
}

/// Looks again after an action on the text: one that could not be read has been set aside.
void StrayTexts::conclude(const QString &failure)
{
    m_failure = failure;
    look(this, m_model);
}

} // namespace vornel
