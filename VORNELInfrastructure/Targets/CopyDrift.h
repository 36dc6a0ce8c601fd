#pragma once

#include <VORNELInfrastructure/History/SkillHistory.h>

#include <set>
#include <string>

namespace vornel {

/// Tells what has made copies of one skill differ from the canonical folder: a copy that holds a kept
/// revision is `outdated`, any other was `edited`, or is `unknown` where the history lacks the present
/// revision. The history is read from its latest entry on, each entry once, and only until a copy's content
/// is found.
class CopyDrift
{
public:
    CopyDrift(const Workspace &workspace, const SkillManifest &manifest)
        : m_history(workspace), m_manifest(manifest)
    {}

    /// The drift of a copy that differs and whose content has this digest.
    Drift of(const std::string &digest);

private:
    void readNext();

    SkillHistory m_history;
    const SkillManifest &m_manifest;
    std::optional<std::vector<KeptVersion>> m_unread; ///< the library's own, the next one last
    std::set<std::string> m_digests;                  ///< of the entries read so far
    bool m_holdsRevision = false;                     ///< whether one of them holds the manifest's revision
};

} // namespace vornel
