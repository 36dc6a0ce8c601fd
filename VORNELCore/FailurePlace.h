#pragma once

#include <QString>

#include <filesystem>
#include <utility>

namespace vornel {

/// What an error that is about one skill knows besides its message.
class FailurePlace
{
public:
    /// Without a folder, the error isn't about the skill's own.
    explicit FailurePlace(QString slug, std::filesystem::path folder = {})
        : m_slug(std::move(slug)), m_folder(std::move(folder))
    {}

    const std::filesystem::path &folder() const { return m_folder; }

    /// Names the skill and the place, for the user.
    QString sentence() const;

private:
    QString m_slug;
    std::filesystem::path m_folder;
};

/// An error of type `Error` that is about one skill. It is caught as either of both.
template <typename Error>
class Located : public Error, public FailurePlace
{
public:
    Located(const Error &error, FailurePlace place) : Error(error), FailurePlace(std::move(place)) {}
};

} // namespace vornel
