#pragma once

#include <QString>

#include <filesystem>
#include <utility>

namespace vornel {

/// What an error that is about one skill's folder knows besides its message.
class FailurePlace
{
public:
    explicit FailurePlace(std::filesystem::path folder) : m_folder(std::move(folder)) {}

    const std::filesystem::path &folder() const { return m_folder; }

    /// Names the skill and the place, for the user.
    QString sentence() const;

private:
    std::filesystem::path m_folder;
};

/// An error of type `Error` that is about one skill's folder. It is caught as either of both.
template <typename Error>
class Located : public Error, public FailurePlace
{
public:
    Located(const Error &error, std::filesystem::path folder) : Error(error), FailurePlace(std::move(folder))
    {}
};

} // namespace vornel
