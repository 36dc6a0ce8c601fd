#include "FileDigests.h"

#include <chrono>

namespace vornel {

namespace {

using namespace std::chrono_literals;

/// Two changes of a file that lie closer together may have one time: the coarsest volumes count in this.
constexpr std::chrono::nanoseconds coarsestTime = 2s;

constexpr std::size_t most = 65'536;

bool hasSettled(const EntryStatus &file)
{
    const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return now - file.modified > coarsestTime;
}

} // namespace

void FileDigests::beginOperation()
{
    const std::scoped_lock lock(m_mutex);
    ++m_operation;
    if (m_known.size() > most)
        m_known.clear();
}

std::optional<std::string> FileDigests::find(const EntryStatus &file)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_known.find({file.volume, file.number});
    if (found == m_known.end())
        return std::nullopt;
    Known &known = found->second;
    const bool isOfOperation = known.operation == m_operation;
    if (known.file.size != file.size || known.file.modified != file.modified ||
        !(isOfOperation || (known.isSettled && known.file.changed == file.changed)))
        return std::nullopt;
    known.file = file;
    known.operation = m_operation;
    return known.digest;
}

void FileDigests::remember(const EntryStatus &file, const std::string &digest)
{
    const std::scoped_lock lock(m_mutex);
    m_known.insert_or_assign({file.volume, file.number}, Known{digest, file, m_operation, hasSettled(file)});
}

} // namespace vornel
