#pragma once

#include <QString>

#include <exception>

namespace vornel {

/// What the user reads about any failure: a workspace error's own message, a French sentence with the path
/// for what the file system refused, and otherwise the exception's text.
QString errorMessage(const std::exception &error);

} // namespace vornel
