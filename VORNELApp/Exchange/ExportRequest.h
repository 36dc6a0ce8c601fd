#pragma once

#include <VORNELApp/Model/Library.h>
#include <VORNELCore/Records/ExchangeRecords.h>

#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// Writes skills into an archive where the user says. A file that stands there stays: another name is
/// proposed.
class ExportRequest : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(QUrl proposal READ proposal NOTIFY changed)
    Q_PROPERTY(QUrl proposedFolder READ proposedFolder NOTIFY changed)
    Q_PROPERTY(QString takenName READ takenName NOTIFY changed)
    Q_PROPERTY(QString proposedName READ proposedName NOTIFY changed)
    Q_PROPERTY(QString file READ file NOTIFY changed)
    Q_PROPERTY(QUrl folder READ folder NOTIFY changed)
    Q_PROPERTY(QString content READ content NOTIFY changed)

public:
    ExportRequest(std::shared_ptr<WindowServicing> service, Operations &operations, const Library &library);

    /// Asks where the active ones among these skills are to be written.
    void begin(const QSet<QUuid> &ids);

    /// Writes them there, or to where it was proposed; a name without an extension gets one. `written`
    /// follows or, where something stands there, `refused`.
    Q_INVOKABLE void write(const QUrl &file);
    Q_INVOKABLE void writeToProposal() { write(m_proposal); }

    /// The file that is proposed, its folder and its name.
    const QUrl &proposal() const { return m_proposal; }
    QUrl proposedFolder() const { return QUrl::fromLocalFile(m_folder); }
    QString proposedName() const { return m_proposal.fileName(); }

    /// The name that was taken.
    const QString &takenName() const { return m_takenName; }

    /// The path of what was written, its folder, and what it holds: "2 compétences, 14,2 ko".
    const QString &file() const { return m_written.file; }
    QUrl folder() const;
    QString content() const;

Q_SIGNALS:
    void changed();
    void placeAsked();
    void refused();
    void written();

private:
    QCoro::Task<> writeTo(QString file);
    void refuse(const QString &file);

    const std::shared_ptr<WindowServicing> m_service;
    Operations &m_operations;
    const Library &m_library;
    QList<QUuid> m_ids;
    QUrl m_proposal;
    QString m_folder; ///< that was chosen last
    QString m_takenName;
    SkillExport m_written;
};

} // namespace vornel
