#include "IgnoredSkills.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>

namespace vornel {

IgnoredNames IgnoredSkills::names() const
{
    constexpr std::int64_t longest = 10'000'000;
    const auto place = m_workspace.config.ignoredSkills();
    if (!m_workspace.files.kindAt(place))
        return {};
    const QByteArray bytes = readFile(m_workspace.files, place, longest);
    return RecordJson::decodeDocument<IgnoredNames>(bytes).value_or(IgnoredNames());
}

void IgnoredSkills::keep(const IgnoredNames &names) const
{
    replaceFile(m_workspace.files, m_workspace.config.ignoredSkills(),
                RecordJson::document(RecordJson::encode(names)), Durability::Now);
}

} // namespace vornel
