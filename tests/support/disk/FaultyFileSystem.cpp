#include "FaultyFileSystem.h"

namespace vornel {

namespace fs = std::filesystem;

namespace {

fs::path pathOf(const Place &place)
{
    return fs::path(place.folder.path) / place.name;
}

[[noreturn]] void fail(std::errc fault)
{
    throw fs::filesystem_error("injected", std::make_error_code(fault));
}

} // namespace

FaultyFileSystem::FaultyFileSystem()
{
    around = [this](const Step &step, const Make &make) {
        if (step.kind == Step::Kind::Rename)
            refuseRename(step);
        if (step.kind == Step::Kind::Share && !canShare)
            fail(std::errc::operation_not_permitted);
        const Call kind = step.isLook() ? Call::Look : Call::Change;
        const bool fails = kind == m_kind && ++m_calls == m_failing;
        if (fails && !m_afterwards)
            fail(fault);
        make();
        if (fails)
            fail(fault);
    };
}

void FaultyFileSystem::failAt(int number, Call kind)
{
    m_calls = 0;
    m_failing = number;
    m_kind = kind;
}

void FaultyFileSystem::refuseRename(const Step &step) const
{
    const Place &from = *step.from;
    const Place &to = *step.to;
    const auto isFixedAt = [this](const Place &place) {
        return isFixed && PosixFileSystem::kindAt(place.folder, place.name) == FileKind::Directory &&
               isFixed(pathOf(place));
    };
    if (step.mode == RenameMode::Exchange && !canExchange)
        fail(std::errc::operation_not_supported);
    if ((hasVolumes && rootOf(from.folder.path) != rootOf(to.folder.path)) || isFixedAt(from) ||
        isFixedAt(to))
        fail(std::errc::cross_device_link);
    if (refusesRename && refusesRename(pathOf(from), pathOf(to)))
        fail(fault);
}

} // namespace vornel
