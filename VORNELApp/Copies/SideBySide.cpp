#include "SideBySide.h"

#include <VORNELApp/Model/Answer.h>
#include <VORNELCore/Library/Wording.h>
#include <VORNELCore/Records/ImportModels.h>

#include <QtConcurrentRun>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr qsizetype largestText = 1'048'576;

QString titleOf(TargetKind target, const QString &content)
{
    return assistantName(target) + u" · "_s + content;
}

QString titleOf(TargetKind target, const std::optional<QByteArray> &file)
{
    return titleOf(target, file ? Wording::fileSize(file->size()) : u"supprimé"_s);
}

} // namespace

void SideBySide::compare(const QUuid &skillID, const QString &path)
{
    show({});
    QCoro::connect(look(skillID, path), this, [this, request = ++m_request](const Result &result) {
        if (m_request == request)
            show(result);
    });
}

QCoro::Task<SideBySide::Result> SideBySide::look(QUuid skillID, QString path) const
{
    QFuture<File> left = m_model->inspector().readFile(skillID, TargetKind::claude, path);
    QFuture<File> right = m_model->inspector().readFile(skillID, TargetKind::codex, path);
    const auto claude = co_await answerOf(std::move(left));
    const auto codex = co_await answerOf(std::move(right));
    for (const auto &side : {claude, codex}) {
        if (!side.value)
            co_return {{}, {}, side.outcome.message};
    }
    Result result = co_await QtConcurrent::run(compared, *claude.value, *codex.value);
    if (!*claude.value || !*codex.value) {
        const QSet<TargetKind> folders = co_await findFolders(skillID, path);
        for (const TargetKind target : folders)
            result.titles[static_cast<int>(target)] = titleOf(target, u"dossier"_s);
    }
    co_return result;
}

/// The copies that hold a folder there.
QCoro::Task<QSet<TargetKind>> SideBySide::findFolders(QUuid skillID, QString path) const
{
    QSet<TargetKind> folders;
    const auto copies = co_await answerOf(m_model->inspector().inspectCopies(skillID));
    for (const CopyInspection &copy : copies.value.value_or(QList<CopyInspection>())) {
        for (const FileDifference &difference : copy.differences) {
            if (difference.change != FileChange::removed && difference.relativePath.startsWith(path + u'/'))
                folders.insert(copy.target);
        }
    }
    co_return folders;
}

SideBySide::Result SideBySide::compared(const File &claude, const File &codex)
{
    Result result{{titleOf(TargetKind::claude, claude), titleOf(TargetKind::codex, codex)}, {}, {}};
    const QByteArray before = claude.value_or(QByteArray());
    const QByteArray after = codex.value_or(QByteArray());
    if (std::max(before.size(), after.size()) > largestText)
        result.explanation = u"Ce fichier est trop grand pour être comparé ici."_s;
    else if (const auto lines = lineDiff(before, after))
        result.pairs = pairs(*lines);
    else
        result.explanation = u"Ce fichier n’est pas un texte."_s;
    return result;
}

/// What follows lines that were taken away stands beside them.
QList<SideBySide::Pair> SideBySide::pairs(const QList<DiffLine> &lines)
{
    QList<Pair> pairs;
    qsizetype firstUnpaired = 0;
    for (const DiffLine &line : lines) {
        if (line.kind == DiffLine::Kind::added && firstUnpaired < pairs.size()) {
            pairs[firstUnpaired++].right = line;
            continue;
        }
        if (line.kind == DiffLine::Kind::added)
            pairs.append({std::nullopt, line});
        else if (line.kind == DiffLine::Kind::removed)
            pairs.append({line, std::nullopt});
        else
            pairs.append({line, line});
        if (line.kind != DiffLine::Kind::removed)
            firstUnpaired = pairs.size();
    }
    return pairs;
}

void SideBySide::show(Result result)
{
    beginResetModel();
    m_result = std::move(result);
    endResetModel();
    Q_EMIT shown();
}

int SideBySide::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_result.pairs.size());
}

QVariant SideBySide::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Pair &pair = m_result.pairs.at(index.row());
    const DiffLine left = pair.left.value_or(DiffLine());
    const DiffLine right = pair.right.value_or(DiffLine());
    switch (role) {
    case LeftTextRole:
        return left.text;
    case LeftNumberRole:
        return left.oldNumber;
    case RightTextRole:
        return right.text;
    case RightNumberRole:
        return right.newNumber;
    case IsChangedRole:
        return !pair.left || !pair.right || left.kind == DiffLine::Kind::removed;
    default:
        return {};
    }
}

QHash<int, QByteArray> SideBySide::roleNames() const
{
    return {{LeftTextRole, "leftText"},
            {LeftNumberRole, "leftNumber"},
            {RightTextRole, "rightText"},
            {RightNumberRole, "rightNumber"},
            {IsChangedRole, "isChanged"}};
}

} // namespace vornel
