// Printers that exist only for a test: their page is a memory device context. What a job takes from
// the system is counted, and any one call can be made to fail. "device" is the default printer.
#pragma once

#include "print/win32/print_system.h"

#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qx::test {

struct PrintSystemDouble {
    PrintSystemDouble();
    PrintSystemDouble(const PrintSystemDouble&) = delete;
    PrintSystemDouble& operator=(const PrintSystemDouble&) = delete;
    ~PrintSystemDouble()
    {
        win32::System() = {};
        s_current = nullptr;
    }
    static PrintSystemDouble& Current() { return *s_current; }

    // Which of the calls that can fail is to fail, the first being 1; `failed` becomes its name.
    int failAt = 0;
    std::string failed;

    std::vector<std::string> printers;  // installed, beside the default one
    int held = 0;                       // global blocks, device contexts, fonts and open printers
    int locked = 0;                     // global blocks
    std::string document;               // "started", "ended" or "aborted"
    std::string name;                   // of the document
    std::string device;                 // that the last job was for
    std::string output;                 // the file that the document goes to
    std::vector<std::string> escapes;   // code and text
    std::function<void()> onEndDoc = [] {};
    bool noResolution = false;
    DEVMODEA mode{};  // of the default printer; when a job has started, of that
    ABORTPROC abort = nullptr;
    // The page set-up dialog; `unit` is that of its margins, in thousandths of an inch.
    std::function<BOOL(PAGESETUPDLGA& request, double unit)> onPageSetup;
    DWORD dialogError = 0;

    bool Fails(const char* call)
    {
        if (++m_calls != failAt)
            return false;
        failed = call;
        return true;
    }

  private:
    static inline PrintSystemDouble* s_current = nullptr;
    int m_calls = 0;
};

// ---- What the system does

inline HGLOBAL GlobalCopy(const void* content, std::size_t size)
{
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(::GlobalLock(block), content, size);
    ::GlobalUnlock(block);
    ++PrintSystemDouble::Current().held;
    return block;
}

struct DoubleCalls {
    static PrintSystemDouble& Double() { return PrintSystemDouble::Current(); }

    static BOOL WINAPI PrintDlgA(PRINTDLGA* request)
    {
        EXPECT_EQ(static_cast<DWORD>(PD_RETURNDEFAULT | PD_NOWARNING), request->Flags);
        const struct {
            DEVNAMES names{8, 15, 22, 0};
            char texts[20] = "driver\0device\0port";
        } device;
        request->hDevNames = GlobalCopy(&device, sizeof device);
        request->hDevMode = GlobalCopy(&Double().mode, sizeof(DEVMODEA));
        return TRUE;
    }
    static BOOL WINAPI PageSetupDlgA(PAGESETUPDLGA* request)
    {
        const bool metric = request->Flags == (PSD_MARGINS | PSD_INHUNDREDTHSOFMILLIMETERS);
        EXPECT_TRUE(metric || request->Flags == (PSD_MARGINS | PSD_INTHOUSANDTHSOFINCHES));
        return Double().onPageSetup(*request, metric ? 2.54 : 1.0);
    }
    static DWORD WINAPI CommDlgExtendedError() { return Double().dialogError; }
    static int WINAPI GetDeviceCaps(HDC dc, int index)
    {
        return Double().noResolution ? 0 : ::GetDeviceCaps(dc, index);
    }
    // A printer's handle is its name.
    static BOOL WINAPI OpenPrinterA(LPSTR name, HANDLE* printer, PRINTER_DEFAULTSA*)
    {
        for (std::string& installed : Double().printers) {
            if (installed == name) {
                *printer = installed.data();
                return ++Double().held;
            }
        }
        return FALSE;
    }
    static BOOL WINAPI ClosePrinter(HANDLE) { return Double().held--, TRUE; }
    static BOOL WINAPI GetPrinterA(HANDLE printer, DWORD level, LPBYTE buffer, DWORD size,
                                   DWORD* needed)
    {
        EXPECT_EQ(2U, level);
        *needed = sizeof(PRINTER_INFO_2A);
        if (size < *needed)
            return FALSE;
        static char driver[] = "driver";
        auto* const info = reinterpret_cast<PRINTER_INFO_2A*>(buffer);
        *info = {};  // no port
        info->pDriverName = driver;
        info->pPrinterName = static_cast<char*>(printer);
        return TRUE;
    }
    static LONG WINAPI DocumentPropertiesA(HWND, HANDLE printer, LPSTR, DEVMODEA* mode, DEVMODEA*,
                                           DWORD flags)
    {
        if (flags == 0)
            return sizeof(DEVMODEA);
        EXPECT_EQ(static_cast<DWORD>(DM_OUT_BUFFER), flags);
        std::string_view(static_cast<char*>(printer))
            .copy(reinterpret_cast<char*>(mode->dmDeviceName), sizeof mode->dmDeviceName);
        return IDOK;
    }
    static int WINAPI ExtEscape(HDC, int code, int size, LPCSTR text, int, LPSTR)
    {
        EXPECT_EQ('\0', text[size - 1]);
        Double().escapes.push_back(std::to_string(code) + ' ' + text);
        return 0;
    }
    static HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size)
    {
        ++Double().held;
        return ::GlobalAlloc(flags, size);
    }
    static HGLOBAL WINAPI GlobalFree(HGLOBAL block)
    {
        --Double().held;
        return ::GlobalFree(block);
    }
    static LPVOID WINAPI GlobalLock(HGLOBAL block)
    {
        ++Double().locked;
        return ::GlobalLock(block);
    }
    static BOOL WINAPI GlobalUnlock(HGLOBAL block)
    {
        --Double().locked;
        return ::GlobalUnlock(block);
    }
    static HDC WINAPI CreateDCA(LPCSTR driver, LPCSTR device, LPCSTR, const DEVMODEA* mode)
    {
        EXPECT_STREQ("driver", driver);
        Double().device = device;
        Double().mode = *mode;
        ++Double().held;
        return ::CreateCompatibleDC(nullptr);
    }
    static BOOL WINAPI DeleteDC(HDC dc)
    {
        --Double().held;
        return ::DeleteDC(dc);
    }
    static int WINAPI StartDocA(HDC, const DOCINFOA* info)
    {
        Double().document = "started";
        Double().name = info->lpszDocName;
        Double().output = info->lpszOutput ? info->lpszOutput : "";
        return 1;
    }
    static int WINAPI StartPage(HDC) { return 1; }
    static int WINAPI EndPage(HDC) { return 1; }
    static int WINAPI EndDoc(HDC)
    {
        Double().onEndDoc();
        return Double().document = "ended", 1;
    }
    static int WINAPI AbortDoc(HDC) { return Double().document = "aborted", 1; }
    static int WINAPI SetAbortProc(HDC, ABORTPROC procedure)
    {
        Double().abort = procedure;
        return 1;
    }
    static HFONT WINAPI CreateFontA(int height, int, int, int, int weight, DWORD, DWORD, DWORD,
                                    DWORD, DWORD, DWORD, DWORD, DWORD, LPCSTR face)
    {
        ++Double().held;
        return ::CreateFontA(height, 0, 0, 0, weight, 0, 0, 0, 0, 0, 0, 0, 0, face);
    }
    static BOOL WINAPI DeleteObject(HGDIOBJ object)
    {
        --Double().held;
        return ::DeleteObject(object);
    }
};

// ---- Failing

// In front of an entry of the table: when the call's turn has come it fails instead.
template <auto Entry>
struct Failing;
template <typename Result, typename... Arguments,
          Result (WINAPI* win32::PrintSystem::*Entry)(Arguments...)>
struct Failing<Entry> {
    static inline const char* name;
    static inline Result failure;
    static inline Result(WINAPI* call)(Arguments...);

    static Result WINAPI Run(Arguments... arguments)
    {
        return PrintSystemDouble::Current().Fails(name) ? failure : call(arguments...);
    }
    static void Install(const char* callName, Result result)
    {
        name = callName;
        failure = result;
        call = std::exchange(win32::System().*Entry, Run);
    }
};

inline PrintSystemDouble::PrintSystemDouble()
{
    s_current = this;
    win32::PrintSystem& system = win32::System();
#define QX_DOUBLE(call) system.call = DoubleCalls::call
    QX_DOUBLE(PrintDlgA), QX_DOUBLE(PageSetupDlgA), QX_DOUBLE(CommDlgExtendedError);
    QX_DOUBLE(OpenPrinterA), QX_DOUBLE(ClosePrinter), QX_DOUBLE(GetPrinterA);
    QX_DOUBLE(DocumentPropertiesA), QX_DOUBLE(ExtEscape);
    QX_DOUBLE(GlobalAlloc), QX_DOUBLE(GlobalFree), QX_DOUBLE(GlobalLock), QX_DOUBLE(GlobalUnlock);
    QX_DOUBLE(CreateDCA), QX_DOUBLE(DeleteDC), QX_DOUBLE(CreateFontA), QX_DOUBLE(DeleteObject);
    QX_DOUBLE(StartDocA), QX_DOUBLE(StartPage), QX_DOUBLE(EndPage), QX_DOUBLE(EndDoc);
    QX_DOUBLE(AbortDoc), QX_DOUBLE(SetAbortProc), QX_DOUBLE(GetDeviceCaps);
#undef QX_DOUBLE
#define QX_FAILING(call, failure) Failing<&win32::PrintSystem::call>::Install(#call, failure)
    QX_FAILING(PrintDlgA, FALSE), QX_FAILING(PageSetupDlgA, FALSE);
    QX_FAILING(GlobalAlloc, nullptr), QX_FAILING(GlobalLock, nullptr);
    QX_FAILING(CreateDCA, nullptr), QX_FAILING(StartDocA, -1), QX_FAILING(EndDoc, -1);
    QX_FAILING(StartPage, -1), QX_FAILING(EndPage, -1), QX_FAILING(SetAbortProc, -1);
    QX_FAILING(OpenPrinterA, FALSE), QX_FAILING(GetPrinterA, FALSE);
    QX_FAILING(DocumentPropertiesA, -1);
    QX_FAILING(CreateFontA, nullptr), QX_FAILING(SelectObject, nullptr);
    QX_FAILING(GetTextMetricsA, FALSE), QX_FAILING(CreateDialogParamA, nullptr);
#undef QX_FAILING
}

}  // namespace qx::test
