#pragma once

#include <VORNELInfrastructure/Disk/PosixFileSystem.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>

#include <random>

/// A library in memory, the same at every run.
namespace vornel {

/// Texts as people write them.
class SampleSkillMaker
{
public:
    SkillSummary make(int number)
    {
        using namespace Qt::StringLiterals;
        const QString name = words(2) + u' ' + QString::number(number);
        SkillSummary skill;
        skill.id = QUuid(static_cast<uint>(number), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
        skill.displayName = name.at(0).toUpper() + name.mid(1);
        skill.slug = QString(name).replace(u' ', u'-');
        skill.summary = words(16);
        skill.category = SkillCategory::defaults().at(number % SkillCategory::defaults().size()).id;
        skill.tags = words(4).split(u' ');
        skill.maturity = allCases<Maturity>().at(number / 7 % 4);
        skill.syncState = allCases<SyncState>().at(number / 3 % 5);
        skill.updatedAt = QDateTime::currentDateTimeUtc().addSecs(-3'600LL * number);
        return skill;
    }

private:
    QString words(int count)
    {
        using namespace Qt::StringLiterals;
        static const QStringList vocabulary =
            u"analyse audit base carte code contrôle déploiement données "
            "élément export facture gestion image import journal lecture "
            "mesure modèle outil projet qualité rapport réseau révision "
            "sécurité serveur suivi synthèse tableau test texte vérification"_s.split(u' ');
        std::uniform_int_distribution<qsizetype> any(0, vocabulary.size() - 1);
        QStringList chosen;
        for (int word = 0; word < count; ++word)
            chosen.append(vocabulary.at(any(m_random)));
        return chosen.join(u' ');
    }

    std::mt19937 m_random{20'260'228}; // NOLINT(cert-msc51-cpp): the same library at every run
};

inline QList<SkillSummary> sampleSkills(int count)
{
    SampleSkillMaker maker;
    QList<SkillSummary> skills;
    for (int number = 0; number < count; ++number)
        skills.append(maker.make(number));
    return skills;
}

/// A service that opens on a library of `count` such skills, and on no folder.
class SampleService : public LocalWorkspaceService
{
public:
    explicit SampleService(int count)
        : LocalWorkspaceService(std::make_shared<PosixFileSystem>()), m_skills(sampleSkills(count))
    {}

    QFuture<WorkspaceOverview> bootstrap(std::filesystem::path /*workspaceURL*/,
                                         std::filesystem::path /*claudeRoot*/,
                                         std::filesystem::path /*codexRoot*/) override
    {
        return QtFuture::makeReadyFuture(WorkspaceOverview{{}, m_skills, {}, SkillCategory::defaults()});
    }

private:
    QList<SkillSummary> m_skills;
};

} // namespace vornel
