#include "FailurePlace.h"

#include <VORNELCore/Records/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel {

FailurePlace FailurePlace::ofSkill(const QString &slug, const std::filesystem::path &folder)
{
    const QString name = u"Compétence concernée\u00A0: «\u00A0"_s + slug + u"\u00A0»"_s;
    if (folder.empty())
        return {name + u'.', folder};
    const bool isNamedSo = pathText(folder.filename()) == slug;
    return {name + u", dans "_s + pathText(isNamedSo ? folder.parent_path() : folder) + u'.', folder};
}

FailurePlace FailurePlace::ofFile(const std::filesystem::path &file)
{
    return {u"Fichier concerné\u00A0: "_s + pathText(file) + u'.', file.parent_path()};
}

} // namespace vornel
