#pragma once

#include <VORNELApp/Copies/CopyReplacement.h>
#include <VORNELApp/Model/Library.h>
#include <VORNELApp/Model/SelectedSkill.h>

namespace vornel {

/// The history beside the text that is edited, and what the user does with histories: to bring a version
/// back, to copy a text of it, and to free room.
class History : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(QUuid skillID READ skillID NOTIFY skillIDChanged)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY skillIDChanged)

public:
    History(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
            SelectedSkill &selected, CopyReplacement &replacement);

    /// The selected skill, if its history is shown as it is edited; else null. Another selection closes it.
    const QUuid &skillID() const { return m_skillID; }
    bool isOpen() const { return !m_skillID.isNull(); }
    Q_INVOKABLE void open() { show(m_selected.id()); }
    Q_INVOKABLE void close() { show({}); }

    /// Makes a version the next revision of the skill that is edited, or this file of it alone, once the user
    /// has agreed where a copy has edits of its own. The text that is edited stays, and counts as changed
    /// elsewhere where the version has another. A path that ends in "/" is a folder's.
    Q_INVOKABLE void bringBack(const QString &entry);
    Q_INVOKABLE void bringBackFile(const QString &entry, const QString &path);

    /// The same where the version has no such file: the skill loses it.
    Q_INVOKABLE void removeFile(const QString &entry, const QString &path);

    /// Puts the text of a file of a version on the clipboard.
    Q_INVOKABLE void copyText(const QString &entry, const QString &path);

    /// Deletes the versions of all skills that aren't among the newest and are older than that.
    Q_INVOKABLE void prune(qint64 keep, qint64 days);

Q_SIGNALS:
    void skillIDChanged();

private:
    /// What is to become the next revision.
    struct Return
    {
        QUuid skillID = {};
        qint64 revision = 0; ///< that the user has seen
        QString entry = {};
        QStringList paths = {};
        QString confirmation = {};
    };

    void show(const QUuid &id);
    void ask(Return wish, const QString &verb, const QString &newVersion);
    void bringBack();
    QCoro::Task<> readText(QString entry, QString path);

    const std::shared_ptr<WindowServicing> m_service;
    Operations &m_operations;
    Library &m_library;
    SelectedSkill &m_selected;
    CopyReplacement &m_replacement;
    QUuid m_skillID;
    Return m_return; ///< about which the user may be asked
};

} // namespace vornel
