#pragma once

#include <filesystem>

namespace vornel {

/// Tells where the workspace is by default.
class WorkspaceLocating
{
public:
    virtual ~WorkspaceLocating() = default;

    virtual std::filesystem::path defaultWorkspaceURL() const = 0;
};

} // namespace vornel
