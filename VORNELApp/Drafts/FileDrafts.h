#pragma once

#include <VORNELCore/Services/DraftKeeping.h>

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace vornel {

/// The unsaved texts of the open skill's files beside "SKILL.md".
class FileDrafts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the draft")
    Q_PROPERTY(QStringList paths READ paths NOTIFY changed)

public:
    using QObject::QObject;

    const QList<UnsavedFile> &edits() const { return m_edits; }
    bool isEmpty() const { return m_edits.isEmpty(); }
    QStringList paths() const;

    /// Whether there are edits of a file, or in a folder.
    Q_INVOKABLE bool holds(const QString &path) const;

    /// The edits of a file; nothing where there are none.
    std::optional<UnsavedFile> find(const QString &path) const;

    /// The edits of the first file that is none of these; nothing where there is none.
    std::optional<UnsavedFile> next(const QSet<QString> &paths) const;

    /// Begins with what was found of another skill.
    void begin(const QList<UnsavedFile> &found);

    /// A text was typed, or is what the file holds once more.
    void edit(const UnsavedFile &file);
    void forget(const QString &path);

    /// The edits may stand over a file with this digest, whatever it held when they began.
    void rebase(const QString &path, const QString &digest);

    /// A file, or a folder with its files, has another path or is gone.
    void move(const QString &from, const QString &to);
    void remove(const QString &path);

    /// Gives all of them up.
    void discard();

    /// What was given up last of a file; nothing where that is nothing.
    std::optional<QString> givenUp(const QString &path) const;

    /// The texts as they are now are being saved; and how that ended.
    void beginSaving() { m_sent = m_edits; }
    void endSaving(bool isSaved);

Q_SIGNALS:
    /// There are edits of other files than before.
    void changed();
    void edited();

    /// A file holds this text now; `changed` follows where it is the one that is typed.
    void saved(const QString &path, const QString &text);

    /// The edits are given up now.
    void discarded();

private:
    qsizetype indexOf(const QString &path) const;

    QList<UnsavedFile> m_edits; ///< in the order in which they began
    QList<UnsavedFile> m_sent;
    QHash<QString, QString> m_givenUp; ///< texts, by the paths of their files
};

} // namespace vornel
