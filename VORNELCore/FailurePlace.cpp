#include "FailurePlace.h"

#include "SerializedForms.h"

using namespace Qt::StringLiterals;

namespace vornel {

QString FailurePlace::sentence() const
{
    const QString name = u"Compétence concernée\u00A0: «\u00A0"_s + m_slug + u"\u00A0»"_s;
    if (m_folder.empty())
        return name + u'.';
    const bool isNamedSo = pathText(m_folder.filename()) == m_slug;
    return name + u", dans "_s + pathText(isNamedSo ? m_folder.parent_path() : m_folder) + u'.';
}

} // namespace vornel
