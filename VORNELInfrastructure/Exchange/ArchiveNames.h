#pragma once

#include <QtGlobal>

#include <clocale>

namespace vornel {

/// How libarchive reads the bytes of the names in archives, on the calling thread, for as long as this lives:
/// it goes by the locale, which a program that starts elsewhere leaves to chance.
class ArchiveNames
{
public:
    enum class Encoding { Utf8, Unknown };

    explicit ArchiveNames(Encoding encoding);
    ~ArchiveNames() { ::uselocale(m_former); }
    Q_DISABLE_COPY_MOVE(ArchiveNames)

private:
    locale_t m_former;
};

} // namespace vornel
