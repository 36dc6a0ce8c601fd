#pragma once

/// The product's own typeface.
namespace vornel::BrandFontRegistrar {

/// Makes the bundle's fonts known to this process. A font that can't be read is left out.
void registerFonts();

} // namespace vornel::BrandFontRegistrar
