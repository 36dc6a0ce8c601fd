#include "FailurePlace.h"

#include "SerializedForms.h"

using namespace Qt::StringLiterals;

namespace vornel {

QString FailurePlace::sentence() const
{
    return u"Compétence concernée\u00A0: «\u00A0%1\u00A0», dans %2."_s.arg(pathText(m_folder.filename()),
                                                                           pathText(m_folder.parent_path()));
}

} // namespace vornel
