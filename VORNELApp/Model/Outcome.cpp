#include "Outcome.h"

#include <VORNELCore/Errors/ErrorMessage.h>

namespace vornel {

Outcome Outcome::failedWith(const std::exception &error)
{
    const auto *known = dynamic_cast<const VORNELWorkspaceError *>(&error);
    return {.succeeded = false,
            .errorCase = known != nullptr ? known->caseName() : QString(),
            .message = errorMessage(error)};
}

} // namespace vornel
