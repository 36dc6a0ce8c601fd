#pragma once

#include <QStringList>

#include <filesystem>
#include <string>
#include <vector>

namespace vornel {

/// A call to the kernel that has to do with files, as strace has seen it.
struct SystemCall
{
    std::string thread;
    std::string name;
    std::string text;        ///< with its arguments, less what differs from one run to the next
    bool isCutShort = false; ///< the program was killed in it
    bool changes = false;    ///< a file or folder below the one that was asked about
};

/// The arguments that make strace log such calls to `log`.
QStringList traceArguments(const std::filesystem::path &log);

/// The calls in a log, in their order. What counts as a change is a change below `folder`.
std::vector<SystemCall> callsIn(const std::filesystem::path &log, const std::filesystem::path &folder);

/// Where a program can be killed: at the n-th call of one name by whichever thread reaches it first.
struct KillPoint
{
    SystemCall call;
    int ordinal; ///< among the calls of that name by its thread
};

/// For every change of a run, a place to kill the program just before it: the call that makes the change or,
/// where another thread comes to that ordinal of the name first, the nearest earlier call of which that isn't
/// so. A program that is killed there leaves all earlier changes and no later one. No other place leaves
/// anything else.
std::vector<KillPoint> killPoints(const std::vector<SystemCall> &run);

} // namespace vornel
