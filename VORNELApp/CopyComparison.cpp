#include "CopyComparison.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrentRun>

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
    ++m_request;
    const bool isFolder = path.endsWith(u'/'); // which is listed only if empty
    show({{}, isFolder ? u"Dossier vide."_s : QString()});
    if (!isFolder)
        read(this, m_model, m_skillID, target, path, m_request);
}

void CopyComparison::compareText(const QString &path, const QString &text)
{
    show({});
    read(this, m_model, m_skillID, text, path, ++m_request);
}

QCoro::Task<> CopyComparison::read(QPointer<CopyComparison> self, AppModel *model, QUuid id, Other other,
                                   QString path, int request)
{
    Result result;
    try {
        const auto canonical = co_await model->inspector().readFile(id, std::nullopt, path);
        if (self.isNull())
            co_return;
        const QByteArray compared = co_await bytes(model, id, other, path);
        result = co_await QtConcurrent::run(difference, canonical.value_or(QByteArray()), compared);
    } catch (const std::exception &error) {
        result.explanation = AppModel::message(error);
    }
    if (!self.isNull() && self->m_request == request)
        self->show(std::move(result));
}

QCoro::Task<QByteArray> CopyComparison::bytes(AppModel *model, QUuid id, Other other, QString path)
{
    if (const QString *text = std::get_if<QString>(&other))
        co_return text->toUtf8();
    const auto copy = co_await model->inspector().readFile(id, std::get<TargetKind>(other), path);
    co_return copy.value_or(QByteArray());
}

CopyComparison::Result CopyComparison::difference(const QByteArray &canonical, const QByteArray &copy)
{
    constexpr qsizetype largestText = 1'048'576;
    if (std::max(canonical.size(), copy.size()) > largestText)
        return {{}, u"Ce fichier est trop grand pour être comparé ici."_s};
    const auto lines = lineDiff(canonical, copy);
    if (!lines)
        return {{}, u"Ce fichier n’est pas un texte."_s};
    if (!lines->isEmpty())
        return {*lines, {}};
    return {{}, canonical.isEmpty() ? u"Ce fichier est vide."_s : u"Il n’y a pas de différence."_s};
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
