#include "VORNELResources.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString findBundle()
{
    const QString name = u"/VORNEL_VORNELApp.bundle"_s;
    const QString program = QCoreApplication::applicationDirPath();
    const QStringList places{program + name,
                             QDir::cleanPath(program + QStringLiteral("/" VORNEL_SHARE) + name),
                             QStringLiteral(VORNEL_BUILD_FOLDER) + name};
    const auto found =
        std::ranges::find_if(places, [](const QString &place) { return QFileInfo(place).isDir(); });
    if (found == places.end())
        qFatal("could not load resource bundle: from %s", qUtf8Printable(places.join(u" or "_s)));
    return *found;
}

} // namespace

const QString &VORNELResources::bundle()
{
    static const QString folder = findBundle();
    return folder;
}

} // namespace vornel
