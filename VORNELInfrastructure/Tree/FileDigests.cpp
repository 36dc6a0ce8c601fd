#include "FileDigests.h"

#include <chrono>

namespace vornel {

namespace {

using namespace std::chrono_literals;

/// Two changes of a file that lie closer together may have one time: the coarsest volumes count in this.
constexpr std::chrono::nanoseconds coarsestTime = 2s;

constexpr std::size_t most = 65'536;

bool hasSettled(const FileStamp &stamp)
{
    const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return now - stamp.modified > coarsestTime;
}

} // namespace

void FileDigests::beginOperation()
{
    const std::scoped_lock lock(m_mutex);
    ++m_operation;
    if (m_known.size() > most)
        m_known.clear();
}

std::optional<std::string> FileDigests::find(const File &file)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_known.find({file.stamp.volume, file.stamp.number});
    if (found == m_known.end())
        return std::nullopt;
    Known &known = found->second;
    const bool isOfOperation = known.operation == m_operation;
    if (known.stamp.size != file.stamp.size || known.stamp.modified != file.stamp.modified ||
        !(isOfOperation || (known.isSettled && known.stamp.changed == file.stamp.changed)))
        return std::nullopt;
    known.stamp = file.stamp;
    known.operation = m_operation;
    return known.digest;
}

void FileDigests::remember(const File &file, const std::string &digest)
{
    const std::scoped_lock lock(m_mutex);
    m_known.insert_or_assign({file.stamp.volume, file.stamp.number},
                             Known{digest, file.stamp, m_operation, hasSettled(file.stamp)});
}

} // namespace vornel
