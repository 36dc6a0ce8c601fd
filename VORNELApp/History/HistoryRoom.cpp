#include "HistoryRoom.h"

#include <VORNELCore/Library/Wording.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

std::optional<qint64> numberIn(const QString &text)
{
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber && number >= 0 ? std::optional<qint64>(number) : std::nullopt;
}

} // namespace

HistoryRoom::HistoryRoom(QObject *parent)
    : QObject(parent),
      m_looking(this, [this](const Extent &answer) { showExtent(answer); }),
      m_rehearsing(this, [this](const Extent &answer) { showRehearsal(answer); })
{}

void HistoryRoom::componentComplete()
{
    connect(m_model, &AppModel::overviewChanged, this, &HistoryRoom::follow);
    connect(m_model, &AppModel::isWorkingChanged, this, &HistoryRoom::follow);
    look();
}

/// Operations change histories, and others who do so change what an overview shows. What an operation has
/// changed is looked at once it is over.
void HistoryRoom::follow()
{
    if (m_model->isWorking())
        return;
    look();
    if (m_isRehearsing)
        rehearse();
}

void HistoryRoom::look()
{
    m_looking.ask([this] { return answerOf(m_model->histories().historyExtent()); });
}

void HistoryRoom::showExtent(const Extent &answer)
{
    m_extent = answer.value.value_or(m_extent);
    m_problem = answer.outcome.message;
    Q_EMIT changed();
}

void HistoryRoom::setKeep(const QString &keep)
{
    if (std::exchange(m_keep, keep) == keep)
        return;
    Q_EMIT wished();
    forecastAnew();
}

void HistoryRoom::setDays(const QString &days)
{
    if (std::exchange(m_days, days) == days)
        return;
    Q_EMIT wished();
    forecastAnew();
}

QString HistoryRoom::problemOf(const QString &number)
{
    return numberIn(number) ? QString() : u"Tapez un nombre."_s;
}

void HistoryRoom::setRehearsing(bool isRehearsing)
{
    m_isRehearsing = isRehearsing;
    forecastAnew();
}

/// What was worked out before is no answer any more.
void HistoryRoom::forecastAnew()
{
    m_gone.reset();
    m_rehearsalProblem.clear();
    Q_EMIT changed();
    if (m_isRehearsing)
        rehearse();
}

void HistoryRoom::rehearse()
{
    const std::optional<qint64> keep = numberIn(m_keep);
    const std::optional<qint64> days = numberIn(m_days);
    if (keep && days)
        m_rehearsing.ask([this, keep, days] {
            return answerOf(m_model->histories().prune({.keep = *keep, .days = *days, .isRehearsal = true}));
        });
    else
        m_rehearsing.forget();
}

void HistoryRoom::showRehearsal(const Extent &answer)
{
    m_gone = answer.value;
    m_rehearsalProblem = answer.outcome.message;
    Q_EMIT changed();
}

void HistoryRoom::prune()
{
    if (canPrune())
        m_model->history()->prune(*numberIn(m_keep), *numberIn(m_days));
}

QString HistoryRoom::extentText() const
{
    return m_extent.entries > 0 ? Wording::historyExtent(m_extent) : QString();
}

QString HistoryRoom::forecast() const
{
    if (!m_gone)
        return m_rehearsalProblem;
    if (m_gone->entries == 0)
        return u"Aucune version ne serait supprimée."_s;
    const QString verb = m_gone->entries == 1 ? u" serait supprimée"_s : u" seraient supprimées"_s;
    return u"%1%2, ce qui libérerait %3."_s.arg(Wording::countedVersions(m_gone->entries), verb,
                                                Wording::fileSize(m_gone->size));
}

QString HistoryRoom::question() const
{
    return m_gone ? u"Supprimer %1\u00A0?"_s.arg(Wording::countedVersions(m_gone->entries)) : QString();
}

} // namespace vornel
