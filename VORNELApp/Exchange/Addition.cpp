#include "Addition.h"

#include <VORNELCore/Library/Wording.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

bool isOnThisMachine(const QUrl &url)
{
    return url.isLocalFile() && url.host().isEmpty();
}

/// The path with the bytes that the address has, UTF-8 or not.
fs::path pathOf(const QUrl &url)
{
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return standardizedPath(bytes.toStdString());
}

QStringList slugsOf(const QList<SkillAddition> &additions, AdditionKind kind)
{
    QStringList slugs;
    for (const SkillAddition &addition : additions) {
        if (addition.kind == kind)
            slugs.append(addition.slug);
    }
    return slugs;
}

} // namespace

Addition::Addition(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
                   SelectedSkill &selected)
    : m_service(std::move(service)),
      m_operations(operations),
      m_library(library),
      m_selected(selected),
      m_review(this, [this](const Reviewed &answer) { show(answer); })
{}

QString Addition::refusal(const QList<QUrl> &sources)
{
    if (!sources.isEmpty() && std::ranges::all_of(sources, isOnThisMachine))
        return {};
    return u"Seuls des dossiers et des archives qui se trouvent sur cet ordinateur peuvent être ajoutés."_s;
}

void Addition::begin(const QList<QUrl> &sources)
{
    if (m_operations.isWorking() || isOpen())
        return;
    m_operations.showFailure({.succeeded = false, .message = refusal(sources)});
    if (!refusal(sources).isEmpty())
        return;
    m_sources.clear();
    for (const QUrl &source : sources)
        m_sources.append(pathOf(source));
    m_differing.begin({});
    review();
    Q_EMIT begun();
}

void Addition::review()
{
    set(State::Reviewing);
    m_review.ask([this] { return answerOf(m_service->reviewAddition(m_sources)); });
}

void Addition::show(const Reviewed &answer)
{
    if (!answer.value)
        return set(State::Refused, answer.outcome.message);
    m_reviewed = *answer.value;
    m_newSlugs = slugsOf(m_reviewed, AdditionKind::added);
    m_identicalSlugs = slugsOf(m_reviewed, AdditionKind::identical);
    QList<SkillAddition> differing = m_reviewed;
    differing.removeIf(
        [](const SkillAddition &addition) { return addition.kind != AdditionKind::different; });
    m_differing.begin(differing);
    set(State::Reviewed);
    Q_EMIT reviewed();
}

void Addition::choose(int row, AdditionChoice choice)
{
    m_differing.choose(row, choice);
    Q_EMIT changed();
}

void Addition::chooseAll(AdditionChoice choice)
{
    for (int row = 0; row < differingCount(); ++row)
        m_differing.choose(row, choice);
    Q_EMIT changed();
}

bool Addition::isReady() const
{
    return isReviewed() && m_differing.undecidedCount() == 0 && (!m_newSlugs.isEmpty() || revisedCount() > 0);
}

QString Addition::effect() const
{
    const auto added = m_newSlugs.size();
    const auto revised = revisedCount();
    if (const int open = m_differing.undecidedCount(); open > 0)
        return open == 1 ? u"Reste 1 différence à trancher."_s
                         : u"Restent %1 différences à trancher."_s.arg(open);
    if (added == 0 && revised == 0)
        return u"La bibliothèque reste telle quelle\u00A0: il n’y a rien à ajouter."_s;
    const QString verb =
        revised == 1 ? u" recevra une nouvelle révision."_s : u" recevront une nouvelle révision."_s;
    if (added == 0)
        return Wording::countedSkills(revised) + verb;
    const QString text =
        Wording::countedSkills(added) + (added == 1 ? u" sera ajoutée"_s : u" seront ajoutées"_s);
    return revised == 0 ? text + u'.' : text + u", "_s + QString::number(revised) + verb;
}

QVariantList Addition::revisedIDs() const
{
    QVariantList ids;
    for (const SkillAddition &addition : m_differing.records()) {
        const QUuid id = skillID(addition.slug);
        if (addition.choice == AdditionChoice::added && !id.isNull())
            ids.append(QVariant::fromValue(id));
    }
    return ids;
}

QUuid Addition::skillID(const QString &slug) const
{
    const QList<SkillSummary> skills = m_library.skills(Destination::library);
    const auto skill = std::ranges::find(skills, slug, &SkillSummary::slug);
    return skill == skills.end() ? QUuid() : skill->id;
}

QFuture<std::optional<QByteArray>> Addition::readFile(const SkillAddition &reviewed,
                                                      const QString &path) const
{
    return m_service->readAddedFile(m_sources, reviewed, path);
}

int Addition::revisedCount() const
{
    return static_cast<int>(
        std::ranges::count(m_differing.records(), AdditionChoice::added, &SkillAddition::choice));
}

QList<SkillAddition> Addition::decided() const
{
    QList<SkillAddition> additions = m_reviewed;
    for (SkillAddition &addition : additions) {
        for (const SkillAddition &decision : m_differing.records()) {
            if (addition.slug == decision.slug)
                addition.choice = decision.choice;
        }
    }
    return additions;
}

void Addition::add()
{
    if (!isReady() || m_operations.isWorking())
        return;
    set(State::Reviewed);
    run();
}

QCoro::Task<> Addition::run()
{
    const Operations::Running running(m_operations);
    const Outcome outcome = co_await m_operations.perform([this]() -> QCoro::Task<> {
        const QList<SkillDetail> skills = co_await m_service->addSkills(m_sources, decided());
        for (const SkillDetail &skill : skills)
            m_selected.show(skill);
        co_await m_library.read();
        m_operations.confirm(confirmation());
    });
    if (outcome || outcome.isSynchronizationIncomplete()) { // then only an assistant has no copy yet
        Q_EMIT added();
        co_return;
    }
    m_operations.dismiss(outcome);
    set(State::Reviewed, outcome.message);
}

QString Addition::confirmation() const
{
    const auto counted = [](qsizetype count, const QString &one, const QString &several) {
        return count == 0 ? QString() : count == 1 ? one : QString::number(count) + several;
    };
    QStringList parts{counted(m_newSlugs.size(), u"AJOUTÉE"_s, u" AJOUTÉES"_s),
                      counted(revisedCount(), u"NOUVELLE RÉVISION"_s, u" NOUVELLES RÉVISIONS"_s)};
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

void Addition::leave()
{
    m_review.forget();
    set(State::Idle);
}

void Addition::set(State state, const QString &problem)
{
    m_state = state;
    m_problem = problem;
    Q_EMIT changed();
}

} // namespace vornel
