#include "DialogTranslator.h"

using namespace Qt::StringLiterals;

namespace vornel {

QString DialogTranslator::translate(const char *context, const char *sourceText,
                                    const char * /*disambiguation*/, int /*n*/) const
{
    const QLatin1StringView text(sourceText);
    if (QLatin1StringView(context) != "FileDialog"_L1)
        return {};
    if (text == "File name"_L1)
        return u"Nom"_s;
    return text == "Filter"_L1 ? u"Type"_s : QString();
}

} // namespace vornel
