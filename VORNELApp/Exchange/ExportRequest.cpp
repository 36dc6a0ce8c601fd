#include "ExportRequest.h"

#include <VORNELCore/Library/Wording.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QCoro/QCoroFuture>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString folderForExports()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo::exists(documents) ? documents : QDir::homePath();
}

/// The first name after that of a file under which nothing stands beside it: "notes (2).zip".
QString freeNeighbour(const QString &file)
{
    const QFileInfo taken(file);
    const QString extension = taken.suffix().isEmpty() ? QString() : u'.' + taken.suffix();
    for (int number = 2;; ++number) {
        const QString name = u"%1 (%2)%3"_s.arg(taken.completeBaseName()).arg(number).arg(extension);
        const QFileInfo neighbour(taken.dir(), name);
        if (!neighbour.exists() && !neighbour.isSymLink())
            return neighbour.filePath();
    }
}

} // namespace

ExportRequest::ExportRequest(std::shared_ptr<WindowServicing> service, Operations &operations,
                             const Library &library)
    : m_service(std::move(service)),
      m_operations(operations),
      m_library(library),
      m_folder(folderForExports())
{}

void ExportRequest::begin(const QSet<QUuid> &ids)
{
    m_ids.clear();
    QString name;
    for (const SkillSummary &skill : m_library.skills(Destination::library)) {
        if (!ids.contains(skill.id))
            continue;
        name = m_ids.isEmpty() ? skill.slug : u"skills"_s;
        m_ids.append(skill.id);
    }
    if (m_ids.isEmpty() || m_operations.isWorking())
        return;
    m_proposal = QUrl::fromLocalFile(m_folder + u'/' + name + u".zip"_s);
    Q_EMIT changed();
    Q_EMIT placeAsked();
}

void ExportRequest::write(const QUrl &file)
{
    if (m_operations.isWorking())
        return;
    const QFileInfo chosen(file.toLocalFile());
    m_folder = chosen.path();
    writeTo(chosen.suffix().isEmpty() ? chosen.filePath() + u".zip"_s : chosen.filePath());
}

QCoro::Task<> ExportRequest::writeTo(QString file)
{
    const Operations::Running running(m_operations);
    bool isTaken = false;
    const Outcome outcome = co_await m_operations.perform([this, &isTaken, &file]() -> QCoro::Task<> {
        try {
            m_written = co_await m_service->exportSkills(m_ids, pathFromText(file));
        } catch (const std::system_error &error) {
            if (error.code() != std::errc::file_exists)
                throw;
            isTaken = true;
        }
    });
    if (isTaken) {
        refuse(file);
    } else if (outcome) {
        Q_EMIT changed();
        Q_EMIT written();
    }
}

void ExportRequest::refuse(const QString &file)
{
    m_takenName = QFileInfo(file).fileName();
    m_proposal = QUrl::fromLocalFile(freeNeighbour(file));
    Q_EMIT changed();
    Q_EMIT refused();
}

QUrl ExportRequest::folder() const
{
    return QUrl::fromLocalFile(QFileInfo(m_written.file).path());
}

QString ExportRequest::content() const
{
    return Wording::countedSkills(m_written.slugs.size()) + u", "_s + Wording::fileSize(m_written.size);
}

} // namespace vornel
