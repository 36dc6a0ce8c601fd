/// Fills a folder with skills like real ones: about five files each, those beyond the fourth in a subfolder,
/// sizes log-normal around a few kilobytes. The same at every run.

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace {

namespace fs = std::filesystem;

class SkillWriter
{
public:
    explicit SkillWriter(fs::path folder) : m_folder(std::move(folder)) {}

    void write(int number)
    {
        constexpr int filesBesideTheText = 3;
        const fs::path skill = m_folder / ("skill-" + std::to_string(number));
        writeFile(skill / "SKILL.md", "---\nname: Skill " + std::to_string(number) +
                                          "\ndescription: A sample of a skill\n---\n\n");
        const int further = std::uniform_int_distribution(2, 6)(m_random);
        for (int file = 0; file < further; ++file)
            writeFile(skill / (file < filesBesideTheText ? "." : "reference") /
                          ("part-" + std::to_string(file) + ".md"),
                      "# Part\n\n");
    }

private:
    void writeFile(const fs::path &path, std::string text)
    {
        constexpr double largest = 2'000'000;
        fs::create_directories(path.parent_path());
        const auto size = static_cast<std::size_t>(std::min(m_size(m_random), largest));
        while (text.size() < size)
            text += static_cast<char>(m_letter(m_random));
        std::ofstream(path, std::ios::binary) << text;
    }

    fs::path m_folder;
    std::mt19937 m_random{20'260'228}; // NOLINT(cert-msc51-cpp): the same library at every run
    std::lognormal_distribution<double> m_size{8.47, 1.3};
    std::uniform_int_distribution<int> m_letter{' ', '~'};
};

} // namespace

int main(int argc, char *argv[])
{
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    int count = 0;
    if (arguments.size() == 3) {
        const std::string_view text = arguments[2];
        std::from_chars(text.data(), text.data() + text.size(), count);
    }
    if (count <= 0) {
        std::fputs("usage: vornel-sample-library FOLDER COUNT\n", stderr);
        return 64;
    }
    SkillWriter writer(arguments[1]);
    for (int number = 1; number <= count; ++number)
        writer.write(number);
    return 0;
}
