// The report on a line: on paper, as a PDF file, in an e-mail.
#pragma once

#include "core/line.h"
#include "core/localisation.h"
#include "core/report.h"

#include <windows.h>

#include <memory>
#include <string>

namespace pipebench {

// What the report says of a line; the pump's curve is read from its file.
ReportSubject SubjectOf(const Localisation& localisation, const Line& line,
                        const Settings& settings);

class ReportPrinter {
  public:
    ReportPrinter();
    ~ReportPrinter();

    // The user chooses printer, paper and margins, which are kept from one start to the next.
    void PageSetup(HWND owner);
    void Print(HWND owner, const Localisation& localisation, const ReportSubject& subject);
    // The user names the file.
    void SaveAsPdf(HWND owner, const Localisation& localisation, const ReportSubject& subject);
    void Send(HWND owner, const Localisation& localisation, const ReportSubject& subject);

    // Without an owner, for a batch job; whether it was printed.
    struct Batch {
        bool landscape = false;
        short copies = 1;
        std::string pdf;  // empty: on paper
    };
    bool PrintSilently(const Localisation& localisation, const ReportSubject& subject,
                       const Batch& batch);

  private:
    class Job;
    Job& PaperJob();
    bool Run(HWND owner, const Localisation& localisation, const ReportSubject& subject);

    std::unique_ptr<Job>
        m_job;  // made when it is needed: printers are looked for, which takes time
};

}  // namespace pipebench
