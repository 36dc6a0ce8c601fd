#include "Promise.h"

#include <VORNELInfrastructure/Workspace/WorkspaceBootstrap.h>

using namespace vornel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto metadata = Fuzz::checkedRecord<WorkspaceMetadata>(Fuzz::bytes(data, size));
    if (metadata)
        Fuzz::promise(metadata->createdAt.isValid() && metadata->createdAt.timeSpec() == Qt::UTC,
                      "instants are in UTC");
    return 0;
}
