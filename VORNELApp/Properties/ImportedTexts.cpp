#include "ImportedTexts.h"

#include <QHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// What the texts would mend, and of how many skills.
class Mending
{
public:
    /// Counts a skill with what its text gives, and tells whether that mends anything.
    bool adds(const SkillSummary &skill, const SkillProperties &given)
    {
        const bool isName = given.displayName != skill.displayName;
        const bool isSummary = given.summary != skill.summary;
        m_isOfNames |= isName;
        m_isOfSummaries |= isSummary;
        m_count += isName || isSummary ? 1 : 0;
        return isName || isSummary;
    }

    QString told() const
    {
        if (m_count == 0)
            return {};
        const QString what = !m_isOfSummaries ? u"le nom"_s
                             : m_isOfNames    ? u"le nom ou la description"_s
                                              : u"la description"_s;
        const QString whose =
            m_count == 1 ? u" d’une nouvelle compétence."_s : u" de %1 nouvelles compétences."_s.arg(m_count);
        return u"«\u00A0Reprendre du SKILL.md\u00A0» corrigerait "_s + what + whose;
    }

private:
    bool m_isOfNames = false;
    bool m_isOfSummaries = false;
    int m_count = 0;
};

} // namespace

ImportedTexts::ImportedTexts(std::shared_ptr<WindowServicing> service, Library &library)
    : m_service(std::move(service)), m_library(library), m_reading(this, [this](const Reviewed &answer) {
          if (answer.value)
              show(*answer.value);
      })
{
    connect(&library, &Library::wasRead, this, &ImportedTexts::look);
}

void ImportedTexts::lookAt(const QSet<QString> &slugs)
{
    m_ids.clear();
    for (const SkillSummary &skill : m_library.skills(Destination::library)) {
        if (slugs.contains(skill.slug))
            m_ids.insert(skill.id);
    }
    look();
}

void ImportedTexts::look()
{
    QList<QUuid> ids;
    for (const SkillSummary &skill : m_library.skills(Destination::library)) {
        if (m_ids.contains(skill.id))
            ids.append(skill.id);
    }
    if (ids.isEmpty())
        dismiss();
    else
        m_reading.ask(
            [this, ids] { return answerOf(m_service->reviewProperties(ids, {.isFromText = true})); });
}

void ImportedTexts::show(const QList<SkillProperties> &reviewed)
{
    QHash<QString, SkillProperties> given;
    for (const SkillProperties &properties : reviewed)
        given.insert(properties.slug, properties);
    Mending mending;
    m_ids.clear();
    for (const SkillSummary &skill : m_library.skills(Destination::library)) {
        const auto found = given.constFind(skill.slug);
        if (found != given.constEnd() && mending.adds(skill, *found))
            m_ids.insert(skill.id);
    }
    setNotice(mending.told());
}

void ImportedTexts::dismiss()
{
    m_ids.clear();
    m_reading.forget();
    setNotice({});
}

void ImportedTexts::setNotice(const QString &notice)
{
    if (std::exchange(m_notice, notice) != notice)
        Q_EMIT changed();
}

} // namespace vornel
