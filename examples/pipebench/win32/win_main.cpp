// Pipe Bench on Windows: the window, or with --console the console mode.
#include "core/console.h"
#include "core/options.h"
#include "core/settings.h"
#include "core/texts.h"
#include "ids.h"
#include "win32/files.h"
#include "win32/main_window.h"
#include "win32/report_print.h"

#include <windows.h>
#include <commctrl.h>

#include <cstdio>
#include <cstdlib>

using namespace pipebench;

static constexpr DWORD kEnglish = 0x0409;

// A batch job must not stop at a box: the same words are printed instead.
static void PrintFault(const Localisation& localisation, const Fault& fault)
{
    std::printf("[%s] %s\n", Utf8(localisation.String(IDS_PROGRAM)).c_str(),
                Utf8(Sentence(localisation.Module(), fault.stringId, fault.text)).c_str());
}

static int RunOnConsole(const Localisation& localisation)
{
    // A window program has no console of its own: output that goes nowhere yet goes to its
    // caller's.
    if (!::GetStdHandle(STD_OUTPUT_HANDLE) && ::AttachConsole(ATTACH_PARENT_PROCESS))
        (void)std::freopen("CONOUT$", "w", stdout);
    ::SetConsoleOutputCP(CP_UTF8);
    RunConsole(localisation, BesideProgram(kSampleCurve), PrintFault);
    std::fflush(stdout);
    return 0;
}

static int PrintReport(const Localisation& localisation, const Options& options)
{
    std::string name = Wording(localisation.Language(), "Sample line");
    std::erase(name, '&');
    const Line sample{.pipes = SamplePipes(), .path = name};
    const auto subject = SubjectOf(localisation, sample, Settings());
    const bool printed = ReportPrinter().PrintSilently(
        localisation, subject,
        {options.landscape, static_cast<short>(options.copies), options.pdf});
    return printed ? 0 : 1;
}

int WINAPI WinMain(HINSTANCE module, HINSTANCE, LPSTR, int show)
{
    const Options options = ReadOptions({__argv + 1, __argv + __argc});
    if (!options.error.empty()) {
        const std::string text = options.error + "\n\n" + kUsage;
        ::MessageBoxA(nullptr, text.c_str(), "Pipe Bench", MB_OK | MB_ICONHAND);
        return 2;
    }
    Localisation localisation(module, BesideProgram("PIPEBENCH_LANGUAGE.DAT"));
    if (options.console) {
        localisation.Use(options.lcid.value_or(kEnglish));
        return RunOnConsole(localisation);
    }
    if (options.print) {
        localisation.Use(options.lcid.value_or(kEnglish));
        return PrintReport(localisation, options);
    }
    ::InitCommonControls();
    return MainWindow(localisation, options.lcid).Run(show);
}
