#pragma once

#include <QHashFunctions>
#include <QList>
#include <QString>

#include <optional>

namespace vornel {

/// A file of a skill, or a folder with what it holds. Identified by its path.
struct SkillFileNode
{
    QString name;
    QString path;                                 ///< below the skill's folder
    std::optional<QList<SkillFileNode>> children; ///< of a folder

    bool operator==(const SkillFileNode &other) const;
};
size_t qHash(const SkillFileNode &node, size_t seed = 0);

/// The files of a skill, nested by folder. Each folder stands where its first file does. A path that ends in
/// "/" is that of a folder.
QList<SkillFileNode> skillFileTree(const QStringList &relativeFiles);

/// The name of the symbol that stands for a node.
QString icon(const SkillFileNode &node);

} // namespace vornel
