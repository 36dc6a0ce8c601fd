#include "BrandFontRegistrar.h"

#include "VORNELResources.h"

#include <QDir>
#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace vornel {

void BrandFontRegistrar::registerFonts()
{
    const QDir fonts(VORNELResources::bundle() + u"/Fonts"_s);
    const QStringList names = fonts.entryList({u"*.ttf"_s}, QDir::Files);
    for (const QString &name : names)
        QFontDatabase::addApplicationFont(fonts.filePath(name));
}

} // namespace vornel
