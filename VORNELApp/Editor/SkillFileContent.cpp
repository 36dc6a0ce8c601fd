#include "SkillFileContent.h"

#include "SkillFileNode.h"

#include <VORNELApp/Model/Answer.h>
#include <VORNELCore/Library/Wording.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Text/Digest.h>

#include <QBuffer>
#include <QImageReader>
#include <QMimeDatabase>
#include <QtConcurrentRun>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr qsizetype largestShown = 1'048'576;

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

/// A line that tells what a file is, "Document PDF"; empty where nobody knows.
QString typeOf(const QString &path, const QByteArray &bytes)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFileNameAndData(path, bytes);
    return type.isDefault() || type.comment().isEmpty() ? QString() : type.comment() + u'\n';
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
    const int request = ++m_request;
    if (m_model == nullptr || m_path.isEmpty() || !m_model->selectedSkill())
        return show({});
    auto file = m_model->inspector().readFile(m_model->selectedSkillID(), std::nullopt, m_path);
    QCoro::connect(read(std::move(file), m_path), this, [this, request](const Content &content) {
        if (m_request == request)
            show(content);
    });
}

QCoro::Task<SkillFileContent::Content> SkillFileContent::read(QFuture<std::optional<QByteArray>> file,
                                                              QString path)
{
    Content content{.kind = Unshown, .digest = sha256Of({})};
    const auto answer = co_await answerOf(std::move(file));
    if (!answer.value)
        content.explanation = answer.outcome.message;
    else if (const auto &bytes = *answer.value)
        content = co_await QtConcurrent::run(contentOf, path, *bytes);
    else
        content.explanation = u"Ce fichier n’existe plus."_s;
    co_return content;
}

SkillFileContent::Content SkillFileContent::contentOf(const QString &path, const QByteArray &bytes)
{
    Content content{.kind = Unshown, .digest = sha256Of(bytes), .size = Wording::fileSize(bytes.size())};
    if (icon({path, path, std::nullopt}) == u"image"_s) {
        content.picture = decodedPicture(bytes);
        content.kind = content.picture.isNull() ? Unshown : Picture;
        content.explanation = u"Cette image ne peut pas être lue."_s;
        return content;
    }
    if (bytes.size() > largestShown) {
        content.explanation = u"Ce fichier est trop grand pour être affiché ici."_s;
        return content;
    }
    const std::optional<QString> text = textFromUtf8(bytes);
    if (!text || bytes.contains('\0')) {
        content.explanation = typeOf(path, bytes) + u"Ce fichier n’est pas un texte."_s;
        return content;
    }
    content.kind = Text;
    content.text = *text;
    content.lineCount = lineCountOf(content.text);
    return content;
}

void SkillFileContent::show(Content content)
{
    m_content = std::move(content);
    Q_EMIT changed();
}

} // namespace vornel
