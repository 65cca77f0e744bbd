// INIFile against SimpleIni: reading a file of n keys, and looking up keys of it.
#include "support/bench.h"

#include <qxutility/config/ini_file.h>

#define SI_NO_CONVERSION  // of wide characters; only 8-bit ones are used
#include <SimpleIni.h>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

struct Name {
    std::string section, key;
};

// A file with `keys` keys, 20 to a section, and their names in random order.
class Sample {
  public:
    explicit Sample(int keys)
        : m_path(std::filesystem::temp_directory_path() /
                 ("qx_ini_bench_" + std::to_string(keys) + ".ini"))
    {
        std::ofstream file(m_path, std::ios::binary);
        for (int i = 0; i < keys; ++i) {
            const std::string section = "Section " + std::to_string(i / 20);
            const std::string key = "Setting" + std::to_string(i);
            if (i % 20 == 0)
                file << '[' << section << "]\r\n";
            file << key << "=value " << i * 7919 % 100000 << "\r\n";
            names.push_back({section, key});
        }
        std::shuffle(names.begin(), names.end(), std::mt19937(1));
    }
    Sample(const Sample&) = delete;
    Sample& operator=(const Sample&) = delete;
    ~Sample() { std::filesystem::remove(m_path); }

    const char* Path() const { return m_path.c_str(); }

    std::vector<Name> names;

  private:
    std::filesystem::path m_path;
};

using qx::bench::DoNotOptimize;
using qx::bench::Faster;

void Load(qx::bench::Table& table, const Sample& sample, double goal)
{
    table.Compare(
        "load " + std::to_string(sample.names.size()) + " keys",
        [&] { DoNotOptimize(INIFile(sample.Path()).Exists()); },
        {{"SimpleIni",
          [&] {
              CSimpleIniA ini;
              DoNotOptimize(ini.LoadFile(sample.Path()));
          },
          Faster(goal)}},
        sample.names.size());
}

void LookUp(qx::bench::Table& table, const Sample& sample)
{
    const INIFile ours(sample.Path());
    CSimpleIniA peer;
    peer.LoadFile(sample.Path());
    table.Compare(
        "look up in " + std::to_string(sample.names.size()) + " keys",
        [&] {
            for (const Name& name : sample.names)
                DoNotOptimize(ours.GetPrivateProfileStringA(name.section.c_str(), name.key.c_str(),
                                                            "", nullptr, 0));
        },
        {{"SimpleIni",
          [&] {
              for (const Name& name : sample.names)
                  DoNotOptimize(peer.GetValue(name.section.c_str(), name.key.c_str()));
          },
          Faster(3.5)}},
        sample.names.size());
}

}  // namespace

int main(int argc, char** argv)
{
    qx::bench::Table table("INI files", argc, argv);
    const Sample small(1000), large(100000);
    Load(table, small, 10);
    Load(table, large, 3.5);
    LookUp(table, small);
    LookUp(table, large);
    return table.Print();
}
