// Reading all lines of a 64 MiB file with CR LF line ends that the system has in memory.
#include "support/bench.h"

#include <qxutility/formats/text_file.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace {

constexpr std::size_t kFileSize = std::size_t{64} << 20;

struct Count {
    std::size_t lines = 0, bytes = 0;  // without line ends
    bool operator==(const Count&) const = default;
};

// Writes lines of printable characters with lengths from `shortest` to `longest`.
std::size_t WriteFile(const std::string& path, std::size_t shortest, std::size_t longest)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<std::size_t> length(shortest, longest);
    std::string text;
    std::size_t lines = 0;
    for (; text.size() < kFileSize; ++lines) {
        for (std::size_t left = length(random); left > 0; --left)
            text += static_cast<char>('!' + random() % 90);
        text += "\r\n";
    }
    std::ofstream(path, std::ios::binary) << text;
    return lines;
}

Count ReadOurs(const std::string& path)
{
    static char line[4096];
    Count count;
    TextFile file(path.c_str());
    for (; !file.eof(); ++count.lines) {
        file.ReadLine(line);
        qx::bench::DoNotOptimize(line);
        count.bytes += line[0] != '\0';
    }
    return count;
}

Count ReadOursBounded(const std::string& path)
{
    static char line[4096];
    Count count;
    TextFile file(path.c_str());
    for (; !file.eof(); ++count.lines)
        count.bytes += file.ReadLine(line, sizeof line) > 0;
    return count;
}

Count ReadGetline(const std::string& path)
{
    char* line = nullptr;
    std::size_t size = 0;
    Count count;
    std::FILE* file = std::fopen(path.c_str(), "rb");
    for (; ::getline(&line, &size, file) > 0; ++count.lines) {
        qx::bench::DoNotOptimize(line);
        count.bytes += line[0] != '\r';
    }
    std::fclose(file);
    std::free(line);
    return count;
}

Count ReadStdGetline(const std::string& path)
{
    std::string line;
    Count count;
    std::ifstream file(path, std::ios::binary);
    for (; std::getline(file, line); ++count.lines)
        count.bytes += line[0] != '\r';
    return count;
}

}  // namespace

int main(int argc, char** argv)
{
    qx::bench::Table table("TextFile::ReadLine, one line of a cached 64 MiB file", argc, argv);
    const std::string path = (std::filesystem::temp_directory_path() / "qx_readline_bench.txt");
    static constexpr struct {
        const char* name;
        std::size_t shortest, longest;
    } kCases[] = {{"20 to 100 characters", 20, 100},
                  {"20 characters", 20, 20},
                  {"60 characters", 60, 60},
                  {"100 characters", 100, 100},
                  {"0 to 1000 characters", 0, 1000}};
    for (const auto& each : kCases) {
        const std::size_t lines = WriteFile(path, each.shortest, each.longest);
        // After the final line end, our reader has one more, empty line.
        const Count ours = ReadOurs(path), theirs = ReadGetline(path);
        if (ours.lines != lines + 1 || theirs.lines != lines || ours.bytes != theirs.bytes) {
            std::fprintf(stderr, "%s: the readers disagree\n", each.name);
            return 1;
        }
        table.Compare(
            each.name, [&] { ReadOurs(path); },
            {{"getline(3)", [&] { ReadGetline(path); }, qx::bench::Faster(1.5)},
             {"std::getline", [&] { ReadStdGetline(path); }},
             {"our bounded form", [&] { ReadOursBounded(path); }}},
            lines);
    }
    std::filesystem::remove(path);
    return table.Print();
}
