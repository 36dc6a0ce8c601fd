#include "DifferentFileList.h"

#include <VORNELCore/Records/ImportModels.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString symbol(FileChange change)
{
    switch (change) {
    case FileChange::added:
        return u"+"_s;
    case FileChange::removed:
        return u"−"_s;
    case FileChange::changed:
        break;
    }
    return u"~"_s;
}

QString wording(FileChange change)
{
    switch (change) {
    case FileChange::added:
        return u"ajouté"_s;
    case FileChange::removed:
        return u"supprimé"_s;
    case FileChange::changed:
        break;
    }
    return u"modifié"_s;
}

} // namespace

void DifferentFileList::setInspections(const QList<CopyInspection> &inspections)
{
    beginResetModel();
    m_rows.clear();
    for (const CopyInspection &inspection : inspections) {
        for (const FileDifference &difference : inspection.differences)
            m_rows.append({inspection.target, difference});
    }
    endResetModel();
}

int DifferentFileList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant DifferentFileList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto &[target, difference] = m_rows.at(index.row());
    switch (role) {
    case TargetRole:
        return QVariant::fromValue(target);
    case AssistantRole:
        return assistantName(target);
    case PathRole:
        return difference.relativePath;
    case SymbolRole:
        return symbol(difference.change);
    case ChangeTextRole:
        return wording(difference.change);
    default:
        return {};
    }
}

QHash<int, QByteArray> DifferentFileList::roleNames() const
{
    return {{TargetRole, "target"},
            {AssistantRole, "assistant"},
            {PathRole, "path"},
            {SymbolRole, "symbol"},
            {ChangeTextRole, "changeText"}};
}

} // namespace vornel
