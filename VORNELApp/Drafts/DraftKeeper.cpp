#include "DraftKeeper.h"

#include <VORNELCore/Errors/ErrorMessage.h>

#include <QDeadlineTimer>
#include <QThread>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace vornel {

namespace {

constexpr auto typingDelay = 1s; ///< which leaves the disk another one
constexpr auto failureDelay = 10s;
constexpr auto lastPatience = 5s;
constexpr auto lastDelay = 200ms;

} // namespace

DraftKeeper::DraftKeeper(DraftKeeping &drafts, std::function<UnsavedText()> text)
    : m_drafts(drafts), m_text(std::move(text))
{
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this,
            [this] { m_write && m_write->isRunning() ? keepSoon() : write(); });
}

void DraftKeeper::begin(const QUuid &id, const std::optional<UnsavedText> &kept)
{
    stop();
    m_id = id;
    m_kept = kept;
    m_mayExist = kept.has_value();
}

void DraftKeeper::keepSoon()
{
    m_isUnsaved = true;
    if (!m_delay.isActive() || m_delay.remainingTimeAsDuration() > typingDelay)
        m_delay.start(typingDelay);
}

void DraftKeeper::keepNow()
{
    if (!m_isUnsaved)
        return;
    m_delay.stop();
    m_write.reset(); // its result no longer matters: what follows is written after it
    const QDeadlineTimer patience(lastPatience);
    for (writeNow(); !m_failure.isEmpty() && !patience.hasExpired(); writeNow())
        QThread::msleep(lastDelay.count());
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
    m_write.reset();
    m_kept.reset();
    m_mayExist = false;
    m_isUnsaved = false;
    setFailure({});
}

void DraftKeeper::write()
{
    const UnsavedText text = m_text();
    if (m_kept == text)
        return;
    m_kept = text;
    m_mayExist = true;
    m_write = std::make_unique<QFutureWatcher<void>>();
    connect(m_write.get(), &QFutureWatcherBase::finished, this, &DraftKeeper::conclude);
    m_write->setFuture(m_drafts.keepDraft(m_id, text));
}

void DraftKeeper::writeNow()
try {
    m_mayExist = true;
    m_drafts.keepDraft(m_id, m_text()).waitForFinished();
    setFailure({});
} catch (const std::exception &error) {
    setFailure(errorMessage(error));
}

void DraftKeeper::conclude()
{
    try {
        m_write->waitForFinished();
        setFailure({});
    } catch (const std::exception &error) {
        m_kept.reset();
        setFailure(errorMessage(error));
        if (!m_delay.isActive())
            m_delay.start(failureDelay);
    }
}

void DraftKeeper::setFailure(const QString &failure)
{
    if (std::exchange(m_failure, failure) != failure)
        Q_EMIT failureChanged();
}

} // namespace vornel
