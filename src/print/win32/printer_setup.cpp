// Choosing a printer and the margins of a page.
#include "print/job_messages.h"
#include "print/page_area.h"
#include "print/win32/print_system.h"

#include <qxutility/config/startup.h>
#include <qxutility/print/print_job.h>

using namespace qx;
using namespace qx::win32;

static bool IsLandscape(HGLOBAL deviceMode)
{
    const GlobalLocked<DEVMODEA> mode(deviceMode);
    return mode && mode->dmOrientation == DMORIENT_LANDSCAPE;
}

static void SetOrientation(HGLOBAL deviceMode, bool landscape)
{
    if (const GlobalLocked<DEVMODEA> mode(deviceMode); mode)
        mode->dmOrientation = landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
}

// People see margins in the units that they are used to.
static bool IsMetric()
{
    constexpr DWORD kMetric = 0;
    DWORD system = kMetric;
    ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_IMEASURE | LOCALE_RETURN_NUMBER,
                     reinterpret_cast<char*>(&system), sizeof system);
    return system == kMetric;
}

bool QXPrint::SetupPrinter(HWND owner, bool useDefault, const char* kind)
{
    if (m_dc || m_diverted)  // the names and settings are in use, or not the user's
        return false;
    const std::string kindName = kind ? kind : "";
    const bool ready = useDefault ? TakeDefaultPrinter(kindName) : AskForPrinter(owner, kindName);
    if (ready) {
        landscape = IsLandscape(m_deviceMode);
        return true;
    }
    const DWORD dialogError = useDefault ? 0 : System().CommDlgExtendedError();
    const auto message = SetupMessage(useDefault, dialogError);
    if (owner && message)
        ErrorMessage(nullptr, kPrintTitle, owner, message->text, static_cast<int>(message->icon),
                     "");
    return false;
}

bool QXPrint::TakeDefaultPrinter(const std::string& kind)
{
    const auto [fromLeft, fromTop, fromRight, fromBottom] = LoadMargins(kind);
    margins = {fromLeft, fromTop, fromRight, fromBottom};
    PRINTDLGA request{};
    request.lStructSize = sizeof request;
    request.Flags = PD_RETURNDEFAULT | PD_NOWARNING;  // no box of the system's own
    if (System().PrintDlgA(&request) && request.hDevNames) {
        FreeGlobal(m_deviceNames);
        FreeGlobal(m_deviceMode);
        m_deviceNames = request.hDevNames;
        m_deviceMode = request.hDevMode;
        return true;
    }
    FreeGlobal(request.hDevNames);
    FreeGlobal(request.hDevMode);
    return false;
}

bool QXPrint::AskForPrinter(HWND owner, const std::string& kind)
{
    const bool metric = IsMetric();
    const auto shown = [&](int margin) { return metric ? ToHundredthsOfMm(margin) : margin; };
    const auto kept = [&](LONG margin) { return metric ? FromHundredthsOfMm(margin) : margin; };

    SetOrientation(m_deviceMode, landscape);
    qx::Margins chosen = LoadMargins(kind);
    PAGESETUPDLGA request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.hDevNames = m_deviceNames;
    request.hDevMode = m_deviceMode;
    request.Flags =
        PSD_MARGINS | (metric ? PSD_INHUNDREDTHSOFMILLIMETERS : PSD_INTHOUSANDTHSOFINCHES);
    request.rtMargin = {shown(chosen.left), shown(chosen.top), shown(chosen.right),
                        shown(chosen.bottom)};
    const bool okay = System().PageSetupDlgA(&request) != FALSE;
    m_deviceNames = request.hDevNames;  // the dialog may have replaced them, even when cancelled
    m_deviceMode = request.hDevMode;
    if (!okay)
        return false;
    const RECT& set = request.rtMargin;
    chosen = {kept(set.left), kept(set.top), kept(set.right), kept(set.bottom)};
    margins = {chosen.left, chosen.top, chosen.right, chosen.bottom};
    SaveMargins(kind, chosen);
    return true;
}
