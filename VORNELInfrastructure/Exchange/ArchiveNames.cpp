#include "ArchiveNames.h"

namespace vornel {

namespace {

locale_t localeFor(ArchiveNames::Encoding encoding)
{
    static const locale_t utf8 = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    static const locale_t unknown = ::newlocale(LC_CTYPE_MASK, "C", nullptr);
    return encoding == ArchiveNames::Encoding::Utf8 ? utf8 : unknown;
}

} // namespace

ArchiveNames::ArchiveNames(Encoding encoding) : m_former(::uselocale(localeFor(encoding)))
{}

} // namespace vornel
