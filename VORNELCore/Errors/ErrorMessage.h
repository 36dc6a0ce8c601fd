#pragma once

#include <QString>

#include <exception>
#include <filesystem>

namespace vornel {

/// What the user reads about any failure: a workspace error's own message, a French sentence with the path
/// for what the file system refused, and otherwise the exception's text. Where the error is about one skill,
/// a second line names it.
QString errorMessage(const std::exception &error);
QString errorMessage(const std::exception_ptr &error);

/// The folder to look at after a failure; empty where the error names none.
std::filesystem::path failedFolder(const std::exception &error);

} // namespace vornel
