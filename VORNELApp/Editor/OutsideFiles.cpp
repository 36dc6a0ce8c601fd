#include "OutsideFiles.h"

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

void OutsideFiles::open(const QString &path) const
{
    if (!QDesktopServices::openUrl(url(path)))
        m_model->showFailure(
            {.succeeded = false, .message = u"Aucun programme de cet ordinateur ne peut l’ouvrir."_s});
}

} // namespace vornel
