// A print job, from its device context to its end.
#include "config/process.h"
#include "platform/message_box.h"
#include "print/job_messages.h"
#include "print/page_area.h"
#include "print/win32/cancel_window.h"
#include "print/win32/mail_report.h"
#include "print/win32/print_system.h"

#include <qxutility/config/startup.h>
#include <qxutility/print/print_job.h>

#include <string_view>

using namespace qx;
using namespace qx::win32;

static constexpr char kUsualKind[] = "DEF";
static const JobMessage kNoMemory{kOutOfMemory, MB_ICONSTOP, {}};
static const JobMessage kJobFailed{kPrintingError, MB_ICONSTOP, {}};
static const JobMessage kNotDiverted{kNoPdfPrinter, MB_ICONINFORMATION, {}};

static const QXPrint* running = nullptr;  // the one whose job runs
static bool ending = false;               // that job, in EndPrint

// ---- Life

QXPrint::QXPrint()
{
    SetupPrinter(nullptr, true, kUsualKind);
    PDFInit();
}

QXPrint::~QXPrint()
{
    if (running == this) {
        Abort();
        DeleteObjects();
        Finish();
    }
    RemovePlaceholder();
    for (const HGLOBAL block : {m_deviceNames, m_deviceMode, m_pdfDeviceNames, m_pdfDeviceMode})
        FreeGlobal(block);
}

HDC QXPrint::GetDC() const
{
    return m_dc;
}

int QXPrint::PageStart()
{
    return System().StartPage(m_dc);
}

int QXPrint::PageEnd()
{
    return System().EndPage(m_dc);
}

int QXPrint::CharWidth() const
{
    TEXTMETRICA font{};
    return m_dc && System().GetTextMetricsA(m_dc, &font) ? font.tmAveCharWidth : 0;
}

bool QXPrint::CancelPrint() const
{
    return IsCancelled();
}

// ---- Start

bool QXPrint::SetupPrint(std::string documentName)
{
    return SetupPrint(nullptr, documentName.c_str()) != nullptr;
}

HDC QXPrint::SetupPrint(HWND owner, const char* documentName)
{
    if (running)
        return nullptr;
    if (!m_deviceNames && !pdf && !mail && !SetupPrinter(owner, true, kUsualKind))
        return nullptr;
    running = this;
    m_owner = owner;
    JobMessage failure = kJobFailed;
    if (Begin(documentName ? documentName : "", failure))
        return m_dc;
    Abort();
    DeleteObjects();
    Finish();
    if (owner)  // when nothing is left of the job that could be in the message's way
        ErrorMessage(nullptr, kPrintTitle, owner, failure.text, static_cast<int>(failure.icon), "");
    return nullptr;
}

bool QXPrint::Begin(const char* documentName, JobMessage& failure)
{
    if ((pdf || mail) && !PDFDivertPrinter()) {
        failure = kNotDiverted;
        return false;
    }
    if (!StartDocument(documentName, failure))
        return false;
    PDFSetupJob(m_owner == nullptr);
    if (m_owner && !OpenCancelWindow(m_owner, m_documentName)) {
        failure = kNoMemory;
        return false;
    }
    if (!CreateFonts() || !MeasurePage())
        return false;
    if (m_owner)
        System().SetAbortProc(m_dc, AbortProcedure);
    ForgetCancel();
    return true;
}

static void ApplySettings(DEVMODEA& mode, bool landscape, bool color)
{
    mode.dmFields |= DM_COPIES | DM_COLOR;
    if (mode.dmCopies == 0)
        mode.dmCopies = 1;
    // Not marked as valid, as ever: drivers take it all the same.
    mode.dmOrientation = landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    mode.dmColor = color ? DMCOLOR_COLOR : DMCOLOR_MONOCHROME;
}

bool QXPrint::StartDocument(const char* documentName, JobMessage& failure)
{
    const std::size_t length =
        std::string_view(documentName).copy(m_documentName, sizeof m_documentName - 1);
    m_documentName[length] = '\0';
    m_documentInfo.cbSize = sizeof m_documentInfo;
    m_documentInfo.lpszDocName = m_documentName;

    const GlobalLocked<DEVNAMES> names(m_deviceNames);
    const GlobalLocked<DEVMODEA> mode(m_deviceMode);
    if ((m_deviceNames && !names) || (m_deviceMode && !mode)) {
        failure = kNoMemory;
        return false;
    }
    if (!names)
        return false;
    if (mode)
        ApplySettings(*mode.get(), landscape, color);
    const auto* const text = reinterpret_cast<const char*>(names.get());
    m_dc = System().CreateDCA(text + names->wDriverOffset, text + names->wDeviceOffset, nullptr,
                              mode.get());
    const auto message = StartMessage(m_dc ? System().StartDocA(m_dc, &m_documentInfo) : SP_ERROR);
    if (!message)
        return true;
    DeleteObjects();
    failure = *message;
    return false;
}

static PageDevice DescribePage(HDC dc)
{
    const auto caps = [dc](int index) { return System().GetDeviceCaps(dc, index); };
    return {caps(PHYSICALWIDTH), caps(PHYSICALHEIGHT), caps(PHYSICALOFFSETX), caps(PHYSICALOFFSETY),
            caps(HORZRES),       caps(VERTRES),        caps(LOGPIXELSX),      caps(LOGPIXELSY)};
}

static HFONT CreateJobFont(int height, int weight)
{
    return System().CreateFontA(height, 0, 0, 0, weight, FALSE, FALSE, FALSE, ANSI_CHARSET,
                                OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                DEFAULT_PITCH | FF_SWISS, "Arial");
}

bool QXPrint::CreateFonts()
{
    const int height = FontHeight(DescribePage(m_dc));
    normalFont = CreateJobFont(height, FW_NORMAL);
    boldFont = CreateJobFont(height, FW_SEMIBOLD);
    return normalFont && boldFont;
}

bool QXPrint::MeasurePage()
{
    const HGDIOBJ previous = System().SelectObject(m_dc, normalFont);
    if (!previous)
        return false;
    TEXTMETRICA font{};
    const bool measured = System().GetTextMetricsA(m_dc, &font) != FALSE;
    System().SelectObject(m_dc, previous);
    if (!measured)
        return false;
    const PageArea area =
        PrintableArea(DescribePage(m_dc),
                      {margins.left, margins.top, margins.right, margins.bottom}, font.tmHeight);
    top = area.top;
    lineHeight = font.tmHeight;
    left = area.left;
    right = area.right;
    lastLine = area.lastLine;
    return true;
}

// ---- End

static void TellEnd(HWND owner, const JobMessage& message)
{
    const std::string text = Process().language.String(nullptr, message.text) + message.more;
    platform::ShowMessageBox(owner, text.c_str(), kPrintTitle, message.icon);
}

void QXPrint::EndPrint(int result)
{
    // What a message calls that is handled inside of a printing call must not pull that from below.
    if (!m_dc || ending || IsInAbortProcedure())
        return;
    ending = true;
    if (!EndDocument(result))
        return;
    DeleteObjects();
    if (mail)  // also after a job that was cancelled, as ever
        MailReport(m_owner, std::string(m_pdfPath), std::string(m_mailTitle));
    if (running == this)
        Finish();
}

// Whether the object is still there: messages are handled meanwhile, one of which may destroy it.
bool QXPrint::EndDocument(int result)
{
    auto message = EndMessage(result, IsCancelled());
    if (!message) {
        const int ended = System().EndDoc(m_dc);
        if (ended <= 0)  // else it is on its way, even if the user cancels now
            message = EndMessage(ended, IsCancelled());
    }
    if (message && running == this && m_owner)
        TellEnd(m_owner, *message);
    if (message && running == this)
        Abort();
    return running == this;
}

void QXPrint::Abort()
{
    if (m_dc)
        System().AbortDoc(m_dc);
}

void QXPrint::DeleteObjects()
{
    if (m_dc)
        System().DeleteDC(m_dc);
    m_dc = nullptr;
    for (HFONT* const font : {&normalFont, &boldFont}) {
        if (*font)
            System().DeleteObject(*font);
        *font = nullptr;
    }
}

void QXPrint::Finish()
{
    if (m_diverted)
        PDFResetPrinter();
    if (m_owner && !IsCancelled())
        CloseCancelWindow();
    m_owner = nullptr;
    running = nullptr;
    ending = false;
}
