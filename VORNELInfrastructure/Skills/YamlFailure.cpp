#include "YamlFailure.h"

#include <yaml-cpp/exceptions.h>

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// By the beginning of the message.
const std::vector<std::pair<std::string, QString>> &reasons()
{
    using namespace YAML;
    static const QString alias =
        u"une valeur commence par «\u00A0*\u00A0»\u00A0; mettez-la entre guillemets"_s;
    static const QString quote = u"des guillemets ne sont pas fermés\u00A0; fermez-les"_s;
    static const std::vector<std::pair<std::string, QString>> all{
        {ErrorMsg::MAP_VALUE,
         u"deux-points et espace au milieu d’une valeur\u00A0; mettez-la entre guillemets, ou vérifiez le retrait de la ligne"_s},
        {ErrorMsg::END_OF_MAP,
         u"cette ligne n’est pas un champ de la forme «\u00A0nom: valeur\u00A0»\u00A0; vérifiez son retrait et ses guillemets"_s},
        {ErrorMsg::TAB_IN_INDENTATION,
         u"tabulation au début d’une ligne\u00A0; remplacez-la par des espaces"_s},
        {ErrorMsg::END_OF_MAP_FLOW,
         u"une accolade n’est pas fermée\u00A0; fermez-la, ou mettez la valeur entre guillemets"_s},
        {ErrorMsg::END_OF_SEQ_FLOW,
         u"un crochet n’est pas fermé\u00A0; fermez-le, ou mettez la valeur entre guillemets"_s},
        {ErrorMsg::DOC_IN_SCALAR, quote},
        {ErrorMsg::EOF_IN_SCALAR, quote},
        {ErrorMsg::UNKNOWN_TOKEN,
         u"une valeur commence par un caractère réservé\u00A0; mettez-la entre guillemets"_s},
        {ErrorMsg::UNKNOWN_ANCHOR, alias},
        {ErrorMsg::ALIAS_NOT_FOUND, alias},
        {ErrorMsg::CHAR_IN_ALIAS, alias},
        {ErrorMsg::INVALID_ESCAPE,
         u"barre oblique inversée entre guillemets doubles\u00A0; doublez-la, ou prenez des guillemets simples"_s},
        {ErrorMsg::BAD_FILE, u"trop de niveaux s’emboîtent\u00A0; mettez la valeur entre guillemets"_s},
    };
    return all;
}

} // namespace

QString yamlFailureReason(const std::string &message)
{
    const auto known = std::ranges::find_if(
        reasons(), [&](const auto &reason) { return message.starts_with(reason.first); });
    return known != reasons().end() ? known->second
                                    : u"syntaxe inattendue\u00A0; mettez la valeur entre guillemets"_s;
}

bool isNoticedLate(const std::string &message)
{
    static const std::set<std::string> late{YAML::ErrorMsg::DOC_IN_SCALAR, YAML::ErrorMsg::EOF_IN_SCALAR,
                                            YAML::ErrorMsg::END_OF_MAP_FLOW, YAML::ErrorMsg::END_OF_SEQ_FLOW,
                                            YAML::ErrorMsg::BAD_FILE};
    return late.contains(message);
}

} // namespace vornel
