#include "platform/files.h"
#include "platform/path_text.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <random>

namespace qx::platform {

// Names are cut to what every file system takes with the suffix added.
static constexpr std::size_t kLongestStem = 200;

static std::string RandomSuffix()
{
    static std::random_device random;
    std::array<char, 8> digits;
    const std::uint32_t number = random();
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    return "." + std::string(digits.data(), end) + ".tmp";
}

std::string TemporaryNameBeside(const char* path)
{
    const std::string_view text = path ? path : "";
    const std::string_view folder = FolderPart(text);
    std::string_view stem = text.substr(folder.size());
    if (stem.size() > kLongestStem)
        stem = "long";
    std::string name;
    do {
        name = std::string(folder).append(stem).append(RandomSuffix());
    } while (FileExists(name.c_str()));
    return name;
}

}  // namespace qx::platform
