#pragma once

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/VORNELProduct.h>
#include <VORNELCore/Services/WorkspaceLocating.h>

namespace vornel {

/// The workspace in the user's home folder, named after the product.
struct DefaultWorkspaceLocator : WorkspaceLocating
{
    explicit DefaultWorkspaceLocator(std::filesystem::path home) : homeDirectory(std::move(home)) {}

    std::filesystem::path defaultWorkspaceURL() const override
    {
        return homeDirectory / pathFromText(VORNELProduct::name);
    }

    std::filesystem::path homeDirectory;
};

} // namespace vornel
