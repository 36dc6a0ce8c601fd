#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace vornel {

/// Fills folders with what nobody expects in a skill, the same for the same seed. Most names are strange. Of
/// the entries for which a walk refuses a tree, each tree has only one or two, so that most of it is walked.
class RandomTree
{
public:
    /// Links that don't dangle lead to `outside`, a folder with folders and files.
    RandomTree(unsigned seed, std::filesystem::path outside);

    /// Adds entries to a folder.
    void fill(const std::filesystem::path &folder);

    int between(int lowest, int highest);
    bool chance(int percent) { return between(1, 100) <= percent; }

    template <typename Value>
    const Value &oneOf(const std::vector<Value> &values)
    {
        return values[static_cast<std::size_t>(between(0, static_cast<int>(values.size()) - 1))];
    }

    std::mt19937 &random() { return m_random; }

    /// The folders that were filled.
    const std::vector<std::filesystem::path> &folders() const { return m_folders; }

private:
    enum class Hazard { Link, Pipe, Name, Nest, LongPath, LargeFile, Unreadable };

    void fill(const std::filesystem::path &folder, int level);
    void addEntry(const std::filesystem::path &path, int level);
    void addHazard(const std::filesystem::path &path);
    void addLink(const std::filesystem::path &path);
    std::string name();

    std::mt19937 m_random;
    std::filesystem::path m_outside;
    std::vector<Hazard> m_hazards;
    std::vector<std::filesystem::path> m_folders;
};

/// Removes all that is in a folder, however deep, also where its folders can't be read.
void emptyFolder(const std::filesystem::path &folder);

} // namespace vornel
