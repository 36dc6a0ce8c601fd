#pragma once

#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <set>

namespace vornel {

/// Finds the files of a skill that none of its other files mentions: by its name, by a folder that holds it
/// ("themes/"), or a module by its name without the ending.
class Mentions
{
public:
    explicit Mentions(const FileTreeSnapshot &tree);

    /// Takes the text of the file at this path.
    void read(const QString &path, QStringView text);

    /// By path. What an assistant looks for unasked needs no mention.
    QStringList unmentioned() const;

private:
    using Words = std::set<QString, std::less<>>;

    bool isMentioned(const QString &path) const;
    bool hasFound(const Words &words) const;

    QStringList m_files;
    Words m_wanted;
    Words m_found;
};

} // namespace vornel
