// Printing a report: on paper, as a PDF file, or as a PDF in an e-mail.
//
//   QXPrint print;                                    // the default printer
//   if (HDC dc = print.SetupPrint(window, "Report")) {
//       int result = print.PageStart();
//       TextOutA(dc, print.left, print.top, "Pumps", 5);
//       if (result > 0)
//           result = print.PageEnd();
//       print.EndPrint(result);
//   }
#pragma once

#include <qxutility/types.h>

#if QX_WINDOWS
#include <qxutility/export.h>

#include <commdlg.h>

#include <string>
#include <string_view>

namespace qx {
struct JobMessage;
}

// A printer with its settings, and the job that runs on it. One job runs at a time in a process: it
// begins with SetupPrint and ends with EndPrint (or with the object, which then aborts it). With an
// owner window people are told what goes wrong, and a window lets them cancel; without one the job
// is silent: it shows nothing at all. Belongs to the user-interface thread.
class QX_API QXPrint {
  public:
    // For SetupPrint: the orientation and colour wanted. SetupPrinter sets the orientation.
    bool landscape = false;
    bool color = false;
    // Whether the report becomes a PDF, and whether that is mailed. Set by PDFSetFileName and
    // EmailSetTitle; they last until the application clears them.
    bool mail = false;
    bool pdf = false;

  protected:
    // The chosen printer, in movable global memory; null when there is none. While a job is
    // diverted, the PDF printer.
    HGLOBAL m_deviceNames = nullptr;  // DEVNAMES
    HGLOBAL m_deviceMode = nullptr;   // DEVMODEA
    HDC m_dc = nullptr;               // of the running job
    HWND m_owner = nullptr;

  public:
    // The fonts of the running job: Arial, an eighth of an inch high. Owned by the job.
    HFONT normalFont = nullptr;
    HFONT boldFont = nullptr;

    // The part of a page that the margins leave, in device units; valid once SetupPrint succeeded.
    int top = 0;         // the first line's y
    int lineHeight = 0;  // of the normal font
    int left = 0;        // the first and the last column
    int right = 0;
    int lastLine = 0;  // lines on a page, less one: -1 when not one fits

    // In thousandths of an inch, from the edges of the paper; SetupPrinter reads them.
    struct Margins {
        int left, top, right, bottom;
    };
    Margins margins{};

  protected:
    DOCINFOA m_documentInfo{};   // lpszOutput: set by a diversion whose driver takes the path there
    char m_documentName[64]{};   // cut to fit
    char m_pdfPath[MAX_PATH]{};  // of the file that the PDF printer writes
    std::string m_mailTitle;

  public:
    // Takes the default printer and the margins of the kind "DEF", and looks for a PDF printer. No
    // message is shown when there is none.
    QXPrint();
    QXPrint(const QXPrint&) = delete;
    QXPrint& operator=(const QXPrint&) = delete;
    ~QXPrint();

    // Chooses printer, paper and margins: the system's default printer, or what the user chooses in
    // the page set-up dialog. Margins are kept per `kind` of report in the family's INI file (0.15
    // inch until then); those that the user chooses are stored there. False when there is no
    // printer, or the user cancelled; everything is then as before, but for the margins.
    bool SetupPrinter(HWND owner, bool useDefault, const char* kind);

    // Starts a job: the device context to draw on, which the job owns; null when it could not be
    // started (the user has been told, if there is an owner) or another job is running.
    //   owner         disabled until EndPrint, under the window that cancels; null: a silent job
    //   documentName  in the spooler and in the cancel window, 63 characters at most
    HDC SetupPrint(HWND owner, const char* documentName);
    // The same as a silent job; whether it was started.
    bool SetupPrint(std::string documentName);

    // The running job's device context, else null.
    HDC GetDC() const;
    // Begin and end a page; positive when all is well, else a code for EndPrint.
    int PageStart();
    int PageEnd();
    // The average width of the current font's characters; 0 without a job.
    int CharWidth() const;
    // Whether the user has cancelled the job: draw no more pages then.
    bool CancelPrint() const;

    // Ends the job: the document goes to the printer when `result`, that of the last printing call,
    // is positive and the user has not cancelled. Otherwise it is aborted and the user is told why.
    // A mailed report is then handed to the mail client. Nothing happens without a running job, nor
    // from a message that is handled inside PageStart, PageEnd or EndPrint.
    void EndPrint(int result);

    // The next report is written to the PDF file `path`. Null, empty and longer than 259 characters
    // stand for no path: the PDF printer then asks for one (a silent job with the system's own PDF
    // printer is refused).
    void PDFSetFileName(const char* path);
    // The next report is mailed as a PDF attachment of the name `title`, "TheReport.PDF" when that
    // is empty. The file is a temporary one, gone after EndPrint; a PDFSetFileName that follows
    // takes its place, and that file is gone then. When the report cannot be sent, a job with an
    // owner offers to keep it.
    void EmailSetTitle(std::string title);
    void EmailSetTitle(const char* title);

    // Shows a new message in the user's mail client, with texts that may be null. Returns 1 when it
    // was handed over (also when the user then cancels it), 0 after a message to the user.
    //   attachmentPath    a file that may still be in the making: waited for at most 3.75 seconds;
    //                     after that the message has no attachment
    //   attachmentName    what the recipient sees as its name
    //   recipientAddress  with or without "SMTP:"
    int EmailMessage(HWND owner, const char* attachmentPath, const char* attachmentName,
                     const char* subject, const char* noteText, const char* recipientAddress,
                     const char* recipientName);

  protected:
    // Look for an installed printer: 1 and its names and settings, as movable global memory that
    // the caller frees, or 0.
    int GetPrinterDevice(const char* printerName, void** deviceNames, void** deviceMode);
    int GetDevMode(const char* printerName, void** deviceMode);

    // Finds the PDF printer, once.
    void PDFInit();
    // Puts the PDF printer in place of the user's; false when there is none.
    bool PDFDivertPrinter();
    // Puts the user's printer back, deletes a mailed report's file, forgets the path and the title.
    void PDFResetPrinter();
    // Tells the PDF printer's driver, once the document is started, what to do with it.
    void PDFSetupJob(bool silent);

  private:
    HGLOBAL m_pdfDeviceNames = nullptr;  // of the PDF printer; null when there is none
    HGLOBAL m_pdfDeviceMode = nullptr;
    HGLOBAL m_savedDeviceNames = nullptr;  // the user's printer while a job is diverted
    HGLOBAL m_savedDeviceMode = nullptr;
    bool m_diverted = false;  // from PDFDivertPrinter to PDFResetPrinter

    std::string m_placeholder;  // what keeps the name of a temporary PDF free; empty for none

    void SetReportPath(std::string_view path);
    void RemovePlaceholder();
    bool PrepareSystemPrinter();

    bool TakeDefaultPrinter(const std::string& kind);
    bool AskForPrinter(HWND owner, const std::string& kind);
    // Parts of SetupPrint. One that fails says with what message, if not the usual one.
    bool Begin(const char* documentName, qx::JobMessage& failure);
    bool StartDocument(const char* documentName, qx::JobMessage& failure);
    bool CreateFonts();
    bool MeasurePage();
    // Parts of the end.
    bool EndDocument(int result);
    void Abort();
    void DeleteObjects();
    void Finish();
};
#endif
