// What a print job asks of the system. Every call goes through this table, so that a test can count
// what is created and make each call fail.
#pragma once

#include <qxutility/types.h>

#include <commdlg.h>
#include <winspool.h>

namespace qx::win32 {

struct PrintSystem {
    // Printers and their settings
    decltype(&::PrintDlgA) PrintDlgA = ::PrintDlgA;
    decltype(&::PageSetupDlgA) PageSetupDlgA = ::PageSetupDlgA;
    decltype(&::CommDlgExtendedError) CommDlgExtendedError = ::CommDlgExtendedError;
    decltype(&::OpenPrinterA) OpenPrinterA = ::OpenPrinterA;
    decltype(&::ClosePrinter) ClosePrinter = ::ClosePrinter;
    decltype(&::GetPrinterA) GetPrinterA = ::GetPrinterA;
    decltype(&::DocumentPropertiesA) DocumentPropertiesA = ::DocumentPropertiesA;
    decltype(&::GlobalAlloc) GlobalAlloc = ::GlobalAlloc;
    decltype(&::GlobalFree) GlobalFree = ::GlobalFree;
    decltype(&::GlobalLock) GlobalLock = ::GlobalLock;
    decltype(&::GlobalUnlock) GlobalUnlock = ::GlobalUnlock;

    // The document
    decltype(&::CreateDCA) CreateDCA = ::CreateDCA;
    decltype(&::DeleteDC) DeleteDC = ::DeleteDC;
    decltype(&::StartDocA) StartDocA = ::StartDocA;
    decltype(&::StartPage) StartPage = ::StartPage;
    decltype(&::EndPage) EndPage = ::EndPage;
    decltype(&::EndDoc) EndDoc = ::EndDoc;
    decltype(&::AbortDoc) AbortDoc = ::AbortDoc;
    decltype(&::SetAbortProc) SetAbortProc = ::SetAbortProc;
    decltype(&::ExtEscape) ExtEscape = ::ExtEscape;

    // The page
    decltype(&::GetDeviceCaps) GetDeviceCaps = ::GetDeviceCaps;
    decltype(&::CreateFontA) CreateFontA = ::CreateFontA;
    decltype(&::SelectObject) SelectObject = ::SelectObject;
    decltype(&::DeleteObject) DeleteObject = ::DeleteObject;
    decltype(&::GetTextMetricsA) GetTextMetricsA = ::GetTextMetricsA;

    // The cancel window
    decltype(&::CreateDialogParamA) CreateDialogParamA = ::CreateDialogParamA;
    decltype(&::DestroyWindow) DestroyWindow = ::DestroyWindow;
};

PrintSystem& System();

// A block of movable global memory while it is locked; null when it cannot be.
template <typename Content>
class GlobalLocked {
  public:
    explicit GlobalLocked(HGLOBAL block)
        : m_block(block),
          m_content(block ? static_cast<Content*>(System().GlobalLock(block)) : nullptr)
    {
    }
    GlobalLocked(const GlobalLocked&) = delete;
    GlobalLocked& operator=(const GlobalLocked&) = delete;
    ~GlobalLocked()
    {
        if (m_content)
            System().GlobalUnlock(m_block);
    }

    Content* get() const { return m_content; }
    Content* operator->() const { return m_content; }
    explicit operator bool() const { return m_content != nullptr; }

  private:
    HGLOBAL m_block;
    Content* m_content;
};

// Frees a block; null is allowed.
void FreeGlobal(HGLOBAL block);

}  // namespace qx::win32
