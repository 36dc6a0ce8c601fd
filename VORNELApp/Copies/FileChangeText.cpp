#include "FileChangeText.h"

using namespace Qt::StringLiterals;

namespace vornel {

QString symbolOf(FileChange change)
{
    switch (change) {
    case FileChange::added:
        return u"+"_s;
    case FileChange::removed:
        return u"−"_s;
    case FileChange::changed:
        break;
    }
    return u"~"_s;
}

QString wordingOf(FileChange change)
{
    switch (change) {
    case FileChange::added:
        return u"ajouté"_s;
    case FileChange::removed:
        return u"supprimé"_s;
    case FileChange::changed:
        break;
    }
    return u"modifié"_s;
}

} // namespace vornel
