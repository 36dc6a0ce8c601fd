#include "IgnoredSkills.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>

namespace vornel {

IgnoredNames IgnoredSkills::names() const
try {
    constexpr std::int64_t longest = 10'000'000;
    const QByteArray bytes = readFile(m_workspace.files, m_workspace.config.ignoredSkills(), longest);
    return RecordJson::decodeDocument<IgnoredNames>(bytes).value_or(IgnoredNames());
} catch (const std::exception &) {
    return {};
}

void IgnoredSkills::keep(const IgnoredNames &names) const
{
    replaceFile(m_workspace.files, m_workspace.config.ignoredSkills(),
                RecordJson::document(RecordJson::encode(names)), Durability::Now);
}

} // namespace vornel
