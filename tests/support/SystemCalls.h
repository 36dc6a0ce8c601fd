#pragma once

#include <QStringList>

#include <filesystem>
#include <string>
#include <vector>

namespace vornel {

/// A call to the kernel by which a program may change files, as strace has seen it.
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

/// Where a program can be killed: at the n-th call of one name by one thread.
struct KillPoint
{
    SystemCall call;
    int ordinal; ///< among the calls of that name by that thread
};

/// Every call by which a run has changed something. Killed there, before the call does anything, a program
/// leaves what the calls before have done; calls that change nothing would leave no more than that. That no
/// other thread reaches the same count first is checked.
std::vector<KillPoint> killPoints(const std::vector<SystemCall> &run);

} // namespace vornel
