// Pipe Bench on systems without windows: the console mode alone.
#include "core/console.h"
#include "core/options.h"
#include "core/settings.h"
#include "ids.h"

#include <qxutility/qxutility.h>

#include <cstdio>
#include <filesystem>

using namespace pipebench;

static constexpr DWORD kEnglish = 0x0409;

// Stands in for the box: what a user would read in it.
static int PrintBox(HWND, const char* text, const char* caption, UINT)
{
    std::printf("[%s] %s\n", Utf8(caption).c_str(), Utf8(text).c_str());
    return IDOK;
}

static void ShowFault(const Localisation& localisation, const Fault& fault)
{
    ErrorMessage(localisation.Module(), localisation.String(IDS_PROGRAM), nullptr, fault.stringId,
                 MB_OK | MB_ICONEXCLAMATION, fault.text.c_str());
}

// The English texts, for when the language table is missing.
static void RegisterStrings(HINSTANCE module)
{
    static constexpr std::pair<unsigned, const char*> kStrings[] = {
#include "pipebench_strings.inc"
    };
    for (const auto& [id, text] : kStrings)
        qx::host::RegisterString(module, id, text);
}

int main(int argc, char** argv)
{
    Options options = ReadOptions({argv + (argc > 0), argv + argc});
    if (options.print && options.error.empty())
        options.error = "reports are printed on Windows only";
    if (!options.error.empty()) {
        std::fprintf(stderr, "pipebench: %s\n%s", options.error.c_str(), kUsage);
        return 2;
    }
    const auto folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    const HINSTANCE module = qx::host::ModuleOf(kUsage);
    RegisterStrings(module);
    Localisation localisation(module, (folder / "PIPEBENCH_LANGUAGE.DAT").string());
    if (!localisation.Use(options.lcid.value_or(kEnglish)))
        std::fprintf(stderr,
                     "pipebench: this language is not in the table, continuing in English\n");
    qx::host::SetMessageBoxHandler(PrintBox);
    RunConsole(localisation, (folder / kSampleCurve).string(), ShowFault);
    return 0;
}
