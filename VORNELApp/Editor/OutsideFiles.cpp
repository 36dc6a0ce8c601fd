#include "OutsideFiles.h"

#include "ApplicationChoice.h"

#include <VORNELApp/Model/Answer.h>

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

using namespace Qt::StringLiterals;

namespace vornel {

QUrl OutsideFiles::url(const QString &path) const
{
    if (!m_model->selectedSkill())
        return {};
    const QString folder = m_model->folder(m_model->selectedSkill()->manifest.slug).toLocalFile();
    return QUrl::fromLocalFile(path.isEmpty() ? folder : folder + u'/' + path);
}

void OutsideFiles::copy(const QString &path) const
{
    auto data = std::make_unique<QMimeData>();
    data->setUrls({url(path)});
    data->setText(url(path).toLocalFile());
    QGuiApplication::clipboard()->setMimeData(data.release());
}

void OutsideFiles::copyPath(const QString &path) const
{
    QGuiApplication::clipboard()->setText(url(path).toLocalFile());
}

QList<QUrl> OutsideFiles::copied()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr ? data->urls() : QList<QUrl>();
}

/// The service opens it: no link leads another program out of the skill.
void OutsideFiles::openWith(const QString &path)
{
    QCoro::connect(answerOf(m_model->files().openFile(m_model->selectedSkillID(), path)), this,
                   [this, place = url(path)](const Answer<std::shared_ptr<QFile>> &answer) {
                       if (answer.value)
                           choose(**answer.value, place);
                       else
                           m_model->showFailure(answer.outcome);
                   });
}

void OutsideFiles::choose(const QFile &file, const QUrl &place)
{
    const auto *const choice = new ApplicationChoice(QDBusConnection::sessionBus(), file, this);
    connect(choice, &ApplicationChoice::failed, this, [this, place] { open(place); });
}

void OutsideFiles::open(const QUrl &place) const
{
    if (!QDesktopServices::openUrl(place))
        m_model->showFailure(
            {.succeeded = false, .message = u"Aucun programme de cet ordinateur ne peut l’ouvrir."_s});
}

} // namespace vornel
