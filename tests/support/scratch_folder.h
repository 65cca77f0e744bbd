// A new, empty folder for a test's files, removed with all it holds at the end of its scope.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace qx::test {

inline void WriteBytes(const std::string& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string ReadBytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class ScratchFolder {
  public:
    ScratchFolder()
    {
        do {
            m_path = std::filesystem::temp_directory_path() /
                     ("qx_test_" + std::to_string(std::random_device()()));
        } while (!std::filesystem::create_directory(m_path));
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string Path() const { return m_path.string(); }
    std::string operator/(const std::string& name) const { return (m_path / name).string(); }
    // Creates a file and returns its path.
    std::string Add(const std::string& name, std::string_view bytes) const
    {
        WriteBytes(*this / name, bytes);
        return *this / name;
    }
    // The names of what it holds.
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        return names;
    }

  private:
    std::filesystem::path m_path;
};

}  // namespace qx::test
