#include "ArchiveBudget.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel {

void ArchiveBudget::takeEntry()
{
    if (--m_left.entries < 0)
        throw VORNELWorkspaceError::integrityFailure(
            u"L’archive contient plus de %1 éléments."_s.arg(m_limits.entries));
}

void ArchiveBudget::takeBytes(std::int64_t count)
{
    m_left.bytes -= count;
    if (m_left.bytes < 0)
        throw VORNELWorkspaceError::integrityFailure(
            u"Le contenu de l’archive dépasse %1."_s.arg(Wording::fileSize(m_limits.bytes)));
}

} // namespace vornel
