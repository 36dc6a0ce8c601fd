#pragma once

#include <filesystem>

namespace vornel {

/// Knows where the workspace stands when nobody says otherwise.
class WorkspaceLocating
{
public:
    virtual ~WorkspaceLocating() = default;

    virtual std::filesystem::path defaultWorkspaceURL() const = 0;
};

} // namespace vornel
