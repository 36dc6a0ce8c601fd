#pragma once

#include <filesystem>
#include <thread>

/// Meddling with a tree from another thread, until that is stopped.
namespace vornel::Mischief {

/// Makes a file endless whenever somebody reads it, and short again when nobody does.
std::jthread grow(const std::filesystem::path &file);

/// Exchanges two entries, a folder and a link for example, again and again.
std::jthread swap(const std::filesystem::path &one, const std::filesystem::path &other);

} // namespace vornel::Mischief
