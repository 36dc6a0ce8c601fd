#include "FileComparison.h"

#include <VORNELApp/Model/Answer.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QtConcurrentRun>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString sign(DiffLine::Kind kind)
{
    switch (kind) {
    case DiffLine::Kind::added:
        return u"+"_s;
    case DiffLine::Kind::removed:
        return u"−"_s;
    case DiffLine::Kind::context:
    case DiffLine::Kind::hunk:
        break;
    }
    return {};
}

} // namespace

void FileComparison::compare(TargetKind target, const QString &path)
{
    if (!path.endsWith(u'/')) {
        begin(std::nullopt, target, path);
        return;
    }
    ++m_request;
    show({{}, u"Dossier vide."_s}); // else it would not be listed
}

void FileComparison::compareWithText(TargetKind target, const QString &path, const QString &text)
{
    begin(text, target, path);
}

void FileComparison::compareText(const QString &path, const QString &text)
{
    begin(std::nullopt, text, path);
}

void FileComparison::copy(int first, int last) const
{
    QStringList texts;
    for (int row = std::max(0, first); row <= last; ++row) {
        const DiffLine &line = m_result.lines.at(row);
        if (line.oldNumber != 0 || line.newNumber != 0)
            texts.append(line.text);
    }
    if (!texts.isEmpty())
        QGuiApplication::clipboard()->setText(texts.join(u'\n'));
}

void FileComparison::begin(const Side &before, const Side &after, const QString &path)
{
    show({});
    QCoro::connect(compare(bytes(before, path), bytes(after, path)), this,
                   [this, request = ++m_request](const Result &result) {
                       if (m_request == request)
                           show(result);
                   });
}

QFuture<std::optional<QByteArray>> FileComparison::bytes(const Side &side, const QString &path) const
{
    if (const QString *text = std::get_if<QString>(&side))
        return QtFuture::makeReadyFuture(std::optional(text->toUtf8()));
    return m_model->inspector().readFile(m_skillID, std::get<Folder>(side), path);
}

QCoro::Task<FileComparison::Result> FileComparison::compare(QFuture<std::optional<QByteArray>> before,
                                                            QFuture<std::optional<QByteArray>> after)
{
    const auto former = co_await answerOf(std::move(before));
    const auto latter = co_await answerOf(std::move(after));
    for (const auto &side : {former, latter}) {
        if (!side.value)
            co_return {{}, side.outcome.message};
    }
    co_return co_await QtConcurrent::run(difference, former.value->value_or(QByteArray()),
                                         latter.value->value_or(QByteArray()));
}

FileComparison::Result FileComparison::difference(const QByteArray &before, const QByteArray &after)
{
    constexpr qsizetype largestText = 1'048'576;
    if (std::max(before.size(), after.size()) > largestText)
        return {{}, u"Ce fichier est trop grand pour être comparé ici."_s};
    const auto lines = lineDiff(before, after);
    if (!lines)
        return {{}, u"Ce fichier n’est pas un texte."_s};
    if (!lines->isEmpty())
        return {*lines, {}};
    return {{}, before.isEmpty() ? u"Ce fichier est vide."_s : u"Il n’y a pas de différence."_s};
}

void FileComparison::show(Result result)
{
    beginResetModel();
    m_result = std::move(result);
    endResetModel();
    Q_EMIT explanationChanged();
}

int FileComparison::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_result.lines.size());
}

QVariant FileComparison::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const DiffLine &line = m_result.lines.at(index.row());
    switch (role) {
    case TextRole:
        return line.text;
    case SignRole:
        return sign(line.kind);
    case OldNumberRole:
        return line.oldNumber;
    case NewNumberRole:
        return line.newNumber;
    default:
        return {};
    }
}

QHash<int, QByteArray> FileComparison::roleNames() const
{
    return {
        {TextRole, "text"}, {SignRole, "sign"}, {OldNumberRole, "oldNumber"}, {NewNumberRole, "newNumber"}};
}

} // namespace vornel
