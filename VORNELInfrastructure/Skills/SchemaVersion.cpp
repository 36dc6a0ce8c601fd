#include "SchemaVersion.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

using namespace Qt::StringLiterals;

namespace vornel {

void refuseNewer(qint64 schemaVersion, const QString &what)
{
    if (schemaVersion > currentSchema)
        throw VORNELWorkspaceError::integrityFailure(u"Une version plus récente de VORNEL a écrit "_s + what +
                                                     u"\u00A0: celle-ci le lit, mais ne le modifie pas."_s);
}

void refuseNewer(const SkillManifest &manifest)
{
    refuseNewer(manifest.schemaVersion, u"le manifeste de "_s + manifest.slug);
}

} // namespace vornel
