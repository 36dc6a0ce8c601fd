#include "FileTreeSnapshot.h"

#include "Sha256.h"

#include <VORNELCore/Records/SkillFiles.h>

#include <algorithm>
#include <iterator>

namespace vornel {

namespace {

std::vector<FileTreeSnapshot::Entry> contentOf(const std::vector<FileTreeSnapshot::Entry> &entries)
{
    const std::string manifest = std::string("/") + SkillFiles::manifest + '/';
    std::vector<FileTreeSnapshot::Entry> content;
    std::ranges::copy_if(entries, std::back_inserter(content), [&](const FileTreeSnapshot::Entry &entry) {
        return ('/' + entry.relativePath + '/').find(manifest) == std::string::npos;
    });
    return content;
}

} // namespace

bool includes(TreeFilter filter, std::string_view relativePath)
{
    const bool hidden = relativePath.starts_with('.') || relativePath.find("/.") != std::string_view::npos;
    const std::string_view name = relativePath.substr(relativePath.rfind('/') + 1);
    return !hidden && (filter == TreeFilter::all || name != SkillFiles::manifest);
}

QStringList FileTreeSnapshot::relativeFiles() const
{
    QStringList files;
    for (const Entry &entry : entries) {
        if (entry.kind == Entry::Kind::file)
            files.append(QString::fromStdString(entry.relativePath));
    }
    return files;
}

FileTreeSnapshot FileTreeSnapshot::content() const
{
    std::vector<Entry> content = contentOf(entries);
    std::string contentDigest = digestOf(content);
    const bool isAll = content.size() == entries.size();
    return {root, std::move(content), std::move(contentDigest), isWhole && isAll};
}

std::string FileTreeSnapshot::contentDigest() const
{
    return digestOf(contentOf(entries));
}

std::string FileTreeSnapshot::digestOf(const std::vector<Entry> &entries)
{
    Sha256 hash;
    std::string line;
    for (const Entry &entry : entries) {
        line.assign({static_cast<char>(entry.kind), '\0'});
        line.append(entry.relativePath).push_back('\0');
        line.append(std::to_string(entry.size)).push_back('\0');
        if (entry.fileDigest)
            line.append(*entry.fileDigest);
        line.push_back('\n');
        hash.update(line);
    }
    return hash.finish();
}

} // namespace vornel
