#include "CopyComparison.h"

#include <QClipboard>
#include <QCoro/QCoroFuture>
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

void CopyComparison::compare(TargetKind target, const QString &path)
{
    if (!path.endsWith(u'/')) {
        begin(std::nullopt, target, path);
        return;
    }
    ++m_request;
    show({{}, u"Dossier vide."_s}); // else it would not be listed
}

void CopyComparison::compareWithText(TargetKind target, const QString &path, const QString &text)
{
    begin(text, target, path);
}

void CopyComparison::compareText(const QString &path, const QString &text)
{
    begin(std::nullopt, text, path);
}

void CopyComparison::copy(int first, int last) const
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

void CopyComparison::begin(const Side &before, const Side &after, const QString &path)
{
    show({});
    read(this, m_model, m_skillID, before, after, path, ++m_request);
}

QCoro::Task<> CopyComparison::read(QPointer<CopyComparison> self, AppModel *model, QUuid id, Side before,
                                   Side after, QString path, int request)
{
    Result result;
    try {
        const QByteArray former = co_await bytes(model, id, before, path);
        if (self.isNull())
            co_return;
        const QByteArray latter = co_await bytes(model, id, after, path);
        result = co_await QtConcurrent::run(difference, former, latter);
    } catch (const std::exception &error) {
        result.explanation = AppModel::message(error);
    }
    if (!self.isNull() && self->m_request == request)
        self->show(std::move(result));
}

QCoro::Task<QByteArray> CopyComparison::bytes(AppModel *model, QUuid id, Side side, QString path)
{
    if (const QString *text = std::get_if<QString>(&side))
        co_return text->toUtf8();
    const auto file = co_await model->inspector().readFile(id, std::get<Folder>(side), path);
    co_return file.value_or(QByteArray());
}

CopyComparison::Result CopyComparison::difference(const QByteArray &before, const QByteArray &after)
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

void CopyComparison::show(Result result)
{
    beginResetModel();
    m_result = std::move(result);
    endResetModel();
    Q_EMIT explanationChanged();
}

int CopyComparison::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_result.lines.size());
}

QVariant CopyComparison::data(const QModelIndex &index, int role) const
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

QHash<int, QByteArray> CopyComparison::roleNames() const
{
    return {
        {TextRole, "text"}, {SignRole, "sign"}, {OldNumberRole, "oldNumber"}, {NewNumberRole, "newNumber"}};
}

} // namespace vornel
