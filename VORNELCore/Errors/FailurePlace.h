#pragma once

#include <QString>

#include <filesystem>
#include <utility>

namespace vornel {

/// What an error knows besides its message: the skill or the file that it is about.
class FailurePlace
{
public:
    /// `folder` is the skill's own, if that is what the error is about.
    static FailurePlace ofSkill(const QString &slug, const std::filesystem::path &folder = {});
    static FailurePlace ofFile(const std::filesystem::path &file);

    /// Where to look; empty where that isn't known.
    const std::filesystem::path &folder() const { return m_folder; }

    /// Names the skill or the file, for the user.
    const QString &sentence() const { return m_sentence; }

private:
    FailurePlace(QString sentence, std::filesystem::path folder)
        : m_sentence(std::move(sentence)), m_folder(std::move(folder))
    {}

    QString m_sentence;
    std::filesystem::path m_folder;
};

/// An error of type `Error` that knows its place. It can be caught as either base.
template <typename Error>
class Located : public Error, public FailurePlace
{
public:
    Located(const Error &error, FailurePlace place) : Error(error), FailurePlace(std::move(place)) {}
};

} // namespace vornel
