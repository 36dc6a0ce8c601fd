#pragma once

#include <QString>

#include <filesystem>
#include <utility>

namespace vornel {

/// What an error knows besides its message: the skill or the file that it is about.
class FailurePlace
{
public:
    /// Without a folder, the error isn't about the skill's own.
    static FailurePlace ofSkill(const QString &slug, const std::filesystem::path &folder = {});
    static FailurePlace ofFile(const std::filesystem::path &file);

    /// Where to look; empty where that isn't known.
    const std::filesystem::path &folder() const { return m_folder; }

    /// Names what it is about, for the user.
    const QString &sentence() const { return m_sentence; }

private:
    FailurePlace(QString sentence, std::filesystem::path folder)
        : m_sentence(std::move(sentence)), m_folder(std::move(folder))
    {}

    QString m_sentence;
    std::filesystem::path m_folder;
};

/// An error of type `Error` that knows its place. It is caught as either of both.
template <typename Error>
class Located : public Error, public FailurePlace
{
public:
    Located(const Error &error, FailurePlace place) : Error(error), FailurePlace(std::move(place)) {}
};

} // namespace vornel
