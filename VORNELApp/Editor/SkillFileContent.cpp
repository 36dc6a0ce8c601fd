#include "SkillFileContent.h"

#include "SkillFileNode.h"

#include <VORNELCore/Library/Wording.h>

#include <QBuffer>
#include <QCoro/QCoroFuture>
#include <QImageReader>
#include <QStringDecoder>
#include <QtConcurrentRun>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr qsizetype largestText = 1'048'576;

/// No screen needs a picture larger than this, in pixels.
constexpr QSize largestPicture(2'048, 2'048);

/// The first picture of a file, no larger than need be; null where it can't be read.
QImage decodedPicture(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > largestPicture.width() || size.height() > largestPicture.height())
        reader.setScaledSize(size.scaled(largestPicture, Qt::KeepAspectRatio));
    return reader.read();
}

int lineCountOf(const QString &text)
{
    const bool isLastOpen = !text.isEmpty() && !text.endsWith(u'\n');
    return static_cast<int>(text.count(u'\n')) + (isLastOpen ? 1 : 0);
}

} // namespace

void SkillFileContent::setPath(const QString &path)
{
    if (std::exchange(m_path, path) == path)
        return;
    show({});
    Q_EMIT pathChanged();
    refresh();
}

void SkillFileContent::componentComplete()
{
    connect(m_model, &AppModel::selectedSkillChanged, this, &SkillFileContent::refresh);
    refresh();
}

void SkillFileContent::refresh()
{
    if (m_model == nullptr || m_path.isEmpty() || !m_model->selectedSkill())
        show({});
    else
        read(this, m_model, m_model->selectedSkillID(), m_path, ++m_request);
}

QCoro::Task<> SkillFileContent::read(QPointer<SkillFileContent> self, AppModel *model, QUuid id, QString path,
                                     int request)
{
    Content content{.kind = Unshown};
    try {
        const auto bytes = co_await model->inspector().readFile(id, std::nullopt, path);
        if (bytes)
            content = co_await QtConcurrent::run(contentOf, path, *bytes);
        else
            content.explanation = u"Ce fichier n’existe plus."_s;
    } catch (const std::exception &error) {
        content.explanation = AppModel::message(error);
    }
    if (!self.isNull() && self->m_request == request)
        self->show(std::move(content));
}

SkillFileContent::Content SkillFileContent::contentOf(const QString &path, const QByteArray &bytes)
{
    Content content{.kind = Unshown, .size = Wording::fileSize(bytes.size())};
    if (icon({path, path, std::nullopt}) == u"image"_s) {
        content.picture = decodedPicture(bytes);
        content.kind = content.picture.isNull() ? Unshown : Picture;
        content.explanation = u"Cette image ne peut pas être lue."_s;
        return content;
    }
    if (bytes.size() > largestText) {
        content.explanation = u"Ce fichier est trop grand pour être affiché ici."_s;
        return content;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    content.text = decoder(bytes);
    content.lineCount = lineCountOf(content.text);
    content.kind = decoder.hasError() || bytes.contains('\0') ? Unshown : Text;
    content.explanation = u"Ce fichier n’est pas un texte."_s;
    return content;
}

void SkillFileContent::show(Content content)
{
    m_content = std::move(content);
    Q_EMIT changed();
}

} // namespace vornel
