#include "CopyDrift.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>

#include <algorithm>

namespace vornel {

Drift CopyDrift::of(const std::string &digest)
{
    if (!m_unread) {
        m_unread.emplace();
        bestEffort([this] { m_unread = m_history.ownVersions(m_manifest.id); });
        std::ranges::reverse(*m_unread);
    }
    while (!m_digests.contains(digest)) {
        if (m_unread->empty())
            return m_holdsRevision ? Drift::edited : Drift::unknown;
        readNext();
    }
    return Drift::outdated;
}

void CopyDrift::readNext()
{
    const KeptVersion version = std::move(m_unread->back());
    m_unread->pop_back();
    const std::optional<std::string> digest = m_history.contentOf(m_manifest.id, version.entry);
    if (!digest)
        return;
    m_digests.insert(*digest);
    m_holdsRevision = m_holdsRevision || version.revision == m_manifest.revision;
}

} // namespace vornel
