#include "config/win32/window_classes.h"

#include <cstdlib>
#include <ctime>
#include <initializer_list>

namespace qx::win32 {

static constexpr char kPleaseWait[] = "QX_PLEASEWAIT";
static constexpr char kSurprise[] = "XYZZY";
static constexpr char kTrackbar[] = "QX_CUSTOMTRACKBAR";

static void RegisterOne(HINSTANCE module, const char* name, UINT style, const char* cursor,
                        int backgroundColor, int extraBytes, WNDPROC procedure)
{
    WNDCLASSA description{};
    description.hInstance = module;
    description.lpszClassName = name;
    description.style = style;
    description.hCursor = ::LoadCursorA(nullptr, cursor);
    description.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(backgroundColor) + 1);
    description.cbWndExtra = extraBytes;
    description.lpfnWndProc = procedure;
    ::RegisterClassA(&description);
}

// Applications draw from the run-time library's generator, too, and count on it being seeded.
static void SeedRandomGenerator()
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));
}

void RegisterWindowClasses(HINSTANCE module)
{
    SeedRandomGenerator();
    RegisterOne(module, kPleaseWait, CS_HREDRAW | CS_VREDRAW | CS_GLOBALCLASS, IDC_WAIT,
                COLOR_BTNFACE, 4, PleaseWaitProcedure);
    SeedRandomGenerator();
    RegisterOne(module, kSurprise, CS_HREDRAW | CS_VREDRAW, IDC_ARROW, COLOR_WINDOW, 12,
                SurpriseProcedure);
    RegisterOne(module, kTrackbar, CS_GLOBALCLASS, IDC_ARROW, COLOR_BTNFACE, 0, TrackbarProcedure);
}

void UnregisterWindowClasses(HINSTANCE module)
{
    for (const char* name : {kPleaseWait, kTrackbar, kSurprise})
        ::UnregisterClassA(name, module);
}

}  // namespace qx::win32
