// A folder of a test's own, removed with everything in it at the end.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace qx::test {

class TemporaryFolder {
  public:
    TemporaryFolder()
    {
        std::random_device random;
        do {
            m_path = std::filesystem::temp_directory_path() / ("qx" + std::to_string(random()));
        } while (!std::filesystem::create_directory(m_path));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    // The path of a file in the folder; of the folder itself without a name.
    std::string Path(std::string_view name = {}) const
    {
        return name.empty() ? m_path.string() : (m_path / name).string();
    }
    // Writes a file, byte for byte, and returns its path.
    std::string Write(std::string_view name, std::string_view bytes) const
    {
        std::ofstream file(m_path / name, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return Path(name);
    }
    // The bytes of a file; empty when there is none.
    std::string Read(std::string_view name) const
    {
        std::ifstream file(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path m_path;
};

}  // namespace qx::test
