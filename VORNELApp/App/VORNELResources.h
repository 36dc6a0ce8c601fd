#pragma once

#include <QString>

/// The application's fonts and images.
namespace vornel::VORNELResources {

/// The folder that holds them, looked for once: beside the program, where an installation puts it, and where
/// the build made it. Without it, the program ends.
const QString &bundle();

} // namespace vornel::VORNELResources
