#pragma once

#include "ArchiveBudget.h"

#include <VORNELInfrastructure/Disk/FileSystem.h>

namespace vornel {

/// Unpacks an archive into the new folder `destination`. Nothing leads out of it: throws `symlinkUnsupported`
/// for a link, and `integrityFailure` for any other name or entry that no skill may have, for a file above 25
/// MiB, for more than the limits allow, and for an archive that can't be read. What has been unpacked until
/// then stays, and nothing is flushed.
void unpack(FileSystem &files, const File &archive, const std::filesystem::path &destination,
            const ArchiveLimits &limits = {});

} // namespace vornel
