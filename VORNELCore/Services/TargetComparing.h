#pragma once

#include <VORNELCore/Records/TargetComparison.h>

#include <QByteArray>
#include <QFuture>

#include <optional>

namespace vornel {

/// Compares what both assistants hold under one slug, whether the library has such a skill or not, and
/// changes nothing. Each operation may fail with `notBootstrapped`, `invalidPath` for what is no slug, or a
/// file-system error.
class TargetComparing
{
public:
    virtual ~TargetComparing() = default;

    /// How both folders differ, each file compared by its content. Fails too where a folder is missing, and
    /// with what an import refuses it for.
    virtual QFuture<TargetComparison> compareTargets(QString slug) = 0;

    /// The bytes of a file in one of the folders; nothing where no file is. Fails with `invalidPath` for a
    /// path out of the folder, and with `symlinkUnsupported` for a link on the way.
    virtual QFuture<std::optional<QByteArray>> readTargetFile(QString slug, TargetKind target,
                                                              QString relativePath) = 0;
};

} // namespace vornel
