#include "TargetOccupants.h"

#include <VORNELApp/Model/Answer.h>

#include <algorithm>

namespace vornel {

QVariantList TargetOccupants::folders() const
{
    QVariantList folders;
    for (const TargetOccupant &folder : m_folders)
        folders.append(QVariant::fromValue(folder));
    return folders;
}

bool TargetOccupants::canBeReplaced() const
{
    return m_problem.isEmpty() && std::ranges::all_of(m_folders, &QString::isEmpty, &TargetOccupant::refusal);
}

void TargetOccupants::look(const QStringList &slugs)
{
    lookAt(placesOf(slugs));
}

void TargetOccupants::lookForRestored(const QStringList &slugs)
{
    QList<TargetPlace> places;
    for (const SkillSummary &skill : m_model->skills(Destination::trash)) {
        if (slugs.contains(skill.slug))
            places += placesOfRestored(skill.id, skill.slug);
    }
    lookAt(places);
}

void TargetOccupants::lookForImport()
{
    m_importPlaces = importPlaces();
    lookAt(m_importPlaces.second);
}

void TargetOccupants::followImport()
{
    if (importPlaces() != m_importPlaces)
        lookForImport();
}

TargetOccupants::ImportPlaces TargetOccupants::importPlaces() const
{
    const std::optional<ImportPlan> plan = m_model != nullptr ? m_model->importPlan() : std::nullopt;
    return plan ? ImportPlaces(plan->id, placesFilledBy(*plan)) : ImportPlaces();
}

void TargetOccupants::lookAt(const QList<TargetPlace> &places)
{
    using Folders = QList<TargetOccupant>;
    const int request = ++m_request;
    if (places.isEmpty())
        return show({});
    QCoro::connect(answerOf(m_model->inspector().occupants(places)), this,
                   [this, request](const Answer<Folders> &answer) {
                       if (m_request == request)
                           show(answer.value.value_or(Folders()), answer.outcome.message);
                   });
}

void TargetOccupants::show(const QList<TargetOccupant> &folders, const QString &problem)
{
    if (m_folders != folders || m_problem != problem) {
        m_folders = folders;
        m_problem = problem;
        Q_EMIT changed();
    }
    Q_EMIT looked();
}

} // namespace vornel
