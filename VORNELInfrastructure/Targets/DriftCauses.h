#pragma once

#include <VORNELInfrastructure/Skills/SkillHistory.h>

#include <set>
#include <string>

namespace vornel {

/// Tells what has made copies of a skill differ from its canonical folder, by the revisions that the history
/// keeps: they are read the latest first, each once, and none beyond the one that answers.
class DriftCauses
{
public:
    DriftCauses(const Workspace &workspace, const SkillManifest &manifest)
        : m_history(workspace), m_manifest(manifest)
    {}

    /// Of a copy that differs, and whose content has this digest.
    Drift of(const std::string &digest);

private:
    void readNext();

    SkillHistory m_history;
    const SkillManifest &m_manifest;
    std::optional<std::vector<std::string>> m_unread; ///< the entries, the next one last
    std::set<std::string> m_digests;                  ///< of the entries that were read
    bool m_holdsRevision = false;                     ///< whether one of those was of the manifest's revision
};

} // namespace vornel
