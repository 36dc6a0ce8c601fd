#include "SystemCalls.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// Those that change something, and some between them to tell moments apart. Those that this machine's kernel
/// lacks are passed over.
const QString tracedCalls = u"trace=?openat,?openat2,?creat,?mkdir,?mkdirat,?rename,?renameat,?renameat2,"
                            "?unlink,?unlinkat,?rmdir,?chmod,?fchmod,?fchmodat,?write,?pwrite64,?writev,"
                            "?pwritev,?truncate,?ftruncate,?fallocate,?symlink,?symlinkat,?link,?linkat,"
                            "?utimensat,?copy_file_range,?sendfile,?ioctl,?fsync,?fdatasync,?flock"_s;

/// The numbers of descriptors and fresh identifiers are left out.
std::string withoutChance(QString text)
{
    static const QRegularExpression chance(
        uR"(\b\d+(?=<)|\b\d{8}T\d{9}Z\b|[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12})"_s);
    return text.remove(chance).toStdString();
}

bool isChange(const std::string &name, const QString &text, const fs::path &folder)
{
    static const std::set<std::string> markers{"fdatasync", "flock", "fsync"};
    static const QRegularExpression writes(u"O_(CREAT|TRUNC|WRONLY|RDWR)"_s);
    if (markers.contains(name) || (name.starts_with("open") && !writes.match(text).hasMatch()))
        return false;
    // Permissions may be set through /proc, which does not tell of what.
    return name == "chmod" || text.contains(QString::fromStdString(folder));
}

} // namespace

QStringList traceArguments(const fs::path &log)
{
    return {u"-f"_s, u"-qq"_s, u"-y"_s, u"-s"_s, u"0"_s, u"-o"_s, pathText(log), u"-e"_s, tracedCalls};
}

std::vector<SystemCall> callsIn(const fs::path &log, const fs::path &folder)
{
    static const QRegularExpression shape(uR"(\A(\d+) +(\w+)(\(.*?)(?:\) += (.*)| <unfinished \.\.\.>)\z)"_s);
    std::vector<SystemCall> calls;
    std::ifstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        const auto match = shape.match(QString::fromStdString(line));
        if (!match.hasMatch())
            continue;
        const std::string name = match.captured(2).toStdString();
        const QString text = match.captured(3);
        const QString result = match.captured(4);
        calls.push_back({match.captured(1).toStdString(), name, name + withoutChance(text), result == u'?',
                         !result.startsWith(u"-1"_s) && isChange(name, text, folder)});
    }
    return calls;
}

std::vector<KillPoint> killPoints(const std::vector<SystemCall> &run)
{
    std::map<std::string, std::map<std::string, int>> counts; // by name, then by thread
    std::optional<KillPoint> place;
    std::vector<KillPoint> points;
    for (const SystemCall &call : run) {
        std::map<std::string, int> &ofName = counts[call.name];
        const int ordinal = ++ofName[call.thread];
        const auto comesLater = [&](const auto &other) {
            return other.first == call.thread || other.second < ordinal;
        };
        if (std::ranges::all_of(ofName, comesLater))
            place = KillPoint{call, ordinal};
        if (!call.changes)
            continue;
        EXPECT_TRUE(place) << "nothing tells the moment before " << call.text;
        if (place)
            points.push_back(*std::exchange(place, std::nullopt));
    }
    return points;
}

} // namespace vornel
