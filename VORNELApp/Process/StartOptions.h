#pragma once

#include <QStringList>

#include <optional>

namespace vornel {

/// What the command line of the window asks for. Those who work on the program have two more options than its
/// users.
struct StartOptions
{
    explicit StartOptions(const QStringList &arguments);

    bool showsHelp = false;
    bool showsVersion = false;
    bool showsGallery = false;
    bool endsAfterFirstFrame = false;
    QString unknown; ///< the first argument that isn't one; null without

    /// Answers what needs no window: a mistake, a question, or that there is no screen. Returns the program's
    /// status then; nothing when a window is wanted.
    std::optional<int> answer() const;
};

} // namespace vornel
