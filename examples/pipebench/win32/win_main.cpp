// Pipe Bench on Windows: the window, or with --console the console mode.
#include "core/console.h"
#include "core/options.h"
#include "core/texts.h"
#include "ids.h"
#include "win32/main_window.h"

#include <windows.h>
#include <commctrl.h>

#include <array>
#include <cstdio>
#include <cstdlib>

using namespace pipebench;

// A batch job must not stop at a box: the same words are printed instead.
static void PrintBadEntry(const Localisation& localisation, const BadEntry& bad)
{
    std::printf("[%s] %s\n", Utf8(localisation.String(IDS_PROGRAM)).c_str(),
                Utf8(Sentence(localisation.Module(), bad.stringId, bad.text)).c_str());
}

static int RunOnConsole(const Localisation& localisation)
{
    // A window program has no console of its own: output that goes nowhere yet goes to its
    // caller's.
    if (!::GetStdHandle(STD_OUTPUT_HANDLE) && ::AttachConsole(ATTACH_PARENT_PROCESS))
        (void)std::freopen("CONOUT$", "w", stdout);
    ::SetConsoleOutputCP(CP_UTF8);
    RunConsole(localisation, PrintBadEntry);
    std::fflush(stdout);
    return 0;
}

static std::string TablePath()
{
    std::array<char, MAX_PATH> path{};
    ::GetModuleFileNameA(nullptr, path.data(), path.size());
    const std::string program = path.data();
    return program.substr(0, program.find_last_of('\\') + 1) + "PIPEBENCH_LANGUAGE.DAT";
}

int WINAPI WinMain(HINSTANCE module, HINSTANCE, LPSTR, int show)
{
    const Options options = ReadOptions({__argv + 1, __argv + __argc});
    if (!options.error.empty()) {
        const std::string text = options.error + "\n\n" + kUsage;
        ::MessageBoxA(nullptr, text.c_str(), "Pipe Bench", MB_OK | MB_ICONHAND);
        return 2;
    }
    Localisation localisation(module, TablePath());
    localisation.Use(options.lcid);
    if (options.console)
        return RunOnConsole(localisation);
    ::InitCommonControls();
    return MainWindow(localisation).Run(show);
}
