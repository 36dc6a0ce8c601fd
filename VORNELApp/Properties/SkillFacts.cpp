#include "SkillFacts.h"

#include <VORNELCore/Library/Wording.h>

namespace vornel {

SkillFacts::SkillFacts(QObject *parent)
    : QObject(parent), m_measuring(this, [this](const Answer<qint64> &answer) {
          m_size = answer.value ? Wording::fileSize(*answer.value) : QString();
          Q_EMIT changed();
      })
{}

void SkillFacts::setModel(AppModel *model)
{
    m_model = model;
    connect(model, &AppModel::selectedSkillChanged, this, &SkillFacts::look);
    look();
}

void SkillFacts::look()
{
    if (!m_model->selectedSkill())
        return;
    const SkillManifest &skill = m_model->selectedSkill()->manifest;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    m_created = Wording::dayAndTime(skill.createdAt, now);
    m_updated = Wording::dayAndTime(skill.updatedAt, now);
    m_revision = QString::number(skill.revision);
    m_measuring.ask([this, id = skill.id] { return answerOf(m_model->properties().sizeOf(id)); });
    Q_EMIT changed();
}

} // namespace vornel
