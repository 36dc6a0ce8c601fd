#include "DraftKeeper.h"

#include <VORNELCore/ErrorMessage.h>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace vornel {

namespace {

constexpr auto typingDelay = 1s; ///< which leaves the disk another one
constexpr auto failureDelay = 10s;

} // namespace

DraftKeeper::DraftKeeper(DraftKeeping &drafts, std::function<KeptDraft()> draft)
    : m_drafts(drafts), m_draft(std::move(draft))
{
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, [this] { m_write.isRunning() ? keepSoon() : write(); });
    connect(&m_write, &QFutureWatcherBase::finished, this, &DraftKeeper::conclude);
}

void DraftKeeper::begin(const QUuid &id, const std::optional<KeptDraft> &kept)
{
    stop();
    m_id = id;
    m_kept = kept;
    m_mayExist = kept.has_value();
}

void DraftKeeper::keepSoon()
{
    m_isUnsaved = true;
    if (!m_delay.isActive())
        m_delay.start(typingDelay);
}

void DraftKeeper::keepNow()
{
    if (m_delay.isActive())
        write();
}

void DraftKeeper::forget()
{
    const bool mayExist = m_mayExist;
    stop();
    if (mayExist)
        m_drafts.discardDraft(m_id);
}

void DraftKeeper::stop()
{
    m_delay.stop();
    m_kept.reset();
    m_mayExist = false;
    m_isUnsaved = false;
    setFailure({});
}

void DraftKeeper::write()
{
    m_delay.stop();
    KeptDraft draft = m_draft();
    if (m_kept && m_kept->text == draft.text && m_kept->baseDigest == draft.baseDigest)
        return;
    m_kept = draft;
    m_mayExist = true;
    m_write.setFuture(m_drafts.keepDraft(m_id, std::move(draft)));
}

void DraftKeeper::conclude()
{
    if (!m_isUnsaved)
        return;
    try {
        m_write.waitForFinished();
        setFailure({});
    } catch (const std::exception &error) {
        m_kept.reset();
        setFailure(errorMessage(error));
        m_delay.start(failureDelay);
    }
}

void DraftKeeper::setFailure(const QString &failure)
{
    if (std::exchange(m_failure, failure) != failure)
        Q_EMIT failureChanged();
}

} // namespace vornel
