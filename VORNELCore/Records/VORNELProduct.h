#pragma once

#include <QString>

/// The product's constants.
namespace vornel::VORNELProduct {

/// The product's name, and the name of the default workspace folder.
inline const QString name = QStringLiteral("VORNEL");

} // namespace vornel::VORNELProduct
