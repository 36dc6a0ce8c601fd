#pragma once

#include <QString>

#include <string>

namespace vornel {

/// What a message of the YAML parser means, and what mends it: the end of a sentence, in French.
QString yamlFailureReason(const std::string &message);

/// Whether the parser notices this only after the field in which it is, as with quotes that are never closed.
bool isNoticedLate(const std::string &message);

} // namespace vornel
