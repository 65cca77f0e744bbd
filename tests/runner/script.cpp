// A package runner that runs nothing: beside each package it writes down how it was called
// ("<package>.run") and what the INI file was at that moment ("<package>.ini").
#include <cstdint>
#include <fstream>
#include <string>

#if defined(_WIN32)
#define EXPORTED extern "C" __declspec(dllexport)
#else
#define EXPORTED extern "C" __attribute__((visibility("default")))
#endif

#if defined(WITHOUT_ENTRY)
EXPORTED void Other() {}
#else
EXPORTED int RunTMS(void* owner, const char* package, int one)
{
    const std::string path = package;
    std::ofstream(path + ".run", std::ios::app)
        << reinterpret_cast<std::uintptr_t>(owner) << " " << one << ";";
    std::ifstream iniFile(path.substr(0, path.find_last_of("/\\") + 1) + "settings.ini",
                          std::ios::binary);
    std::ofstream(path + ".ini", std::ios::binary) << iniFile.rdbuf();
    return 1;
}
#endif
