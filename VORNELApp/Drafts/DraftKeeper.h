#pragma once

#include <VORNELCore/Services/DraftKeeping.h>

#include <QFutureWatcher>
#include <QTimer>

#include <functional>
#include <memory>

namespace vornel {

/// Keeps the unsaved text of one skill while it is typed, and lets nobody wait for that: one text is written
/// at a time, and what was typed meanwhile follows as a whole.
class DraftKeeper : public QObject
{
    Q_OBJECT

public:
    /// `text` gives what is to be kept; it is asked for it shortly before.
    DraftKeeper(DraftKeeping &drafts, std::function<UnsavedText()> text);

    /// Turns to a skill, of which `kept` is kept already.
    void begin(const QUuid &id, const std::optional<UnsavedText> &kept);

    /// The text has changed: it is kept within two seconds, also while the typing goes on.
    void keepSoon();

    /// Keeps what is unsaved before it returns, and tries that for five seconds.
    void keepNow();

    /// Deletes the kept text, since nothing is unsaved any more.
    void forget();

    /// Writes nothing more, and leaves what is kept.
    void stop();

    /// Why the text could not be kept, as the user reads it; empty while it can.
    QString failure() const { return m_failure; }

Q_SIGNALS:
    void failureChanged();

private:
    void write();
    void writeNow();
    void conclude();
    void setFailure(const QString &failure);

    DraftKeeping &m_drafts;
    const std::function<UnsavedText()> m_text;
    QUuid m_id;
    std::optional<UnsavedText> m_kept; ///< what was last handed over
    bool m_mayExist = false;           ///< whether there may be something to delete
    bool m_isUnsaved = false;
    QTimer m_delay;
    std::unique_ptr<QFutureWatcher<void>> m_write; ///< of this skill's text; none before the first
    QString m_failure;
};

} // namespace vornel
