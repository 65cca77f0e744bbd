#include "win32/report_print.h"

#include "ids.h"
#include "win32/file_boxes.h"
#include "win32/files.h"
#include "win32/report_drawing.h"
#include "win32/settings_store.h"

#include <qxutility/core/text.h>

namespace pipebench {

// The kind of report whose margins are kept.
static constexpr char kKind[] = "Pipe Bench";

// A job that remembers its printer from one report to the next.
class ReportPrinter::Job : public QXPrint {
  public:
    Job()
    {
        color = true;
        const bool known = ProposeMargins(kKind, "900,750,750,750");
        SetupPrinter(nullptr, true, kKind);
        if (!known)
            margins = {900, 750, 750, 750};
    }
    void SetCopies(short copies)
    {
        if (auto* const mode = static_cast<DEVMODEA*>(::GlobalLock(m_deviceMode))) {
            mode->dmCopies = copies;
            ::GlobalUnlock(m_deviceMode);
        }
    }
};

ReportSubject SubjectOf(const Localisation& localisation, const Line& line,
                        const Settings& settings)
{
    ReportSubject subject{.name = NameOf(line, localisation.String(IDS_UNTITLED)),
                          .pipes = line.pipes,
                          .settings = settings};
    if (settings.curveFile.empty())
        return subject;
    auto curve = ReadPumpCurve(CurvePath(settings.curveFile));
    if (auto* const fault = std::get_if<Fault>(&curve))
        subject.curve = std::move(*fault);
    else
        subject.curve = std::get<PumpCurve>(std::move(curve));
    return subject;
}

ReportPrinter::ReportPrinter() = default;
ReportPrinter::~ReportPrinter() = default;

// Ready for paper, whatever became of the last report.
ReportPrinter::Job& ReportPrinter::PaperJob()
{
    if (!m_job)
        m_job = std::make_unique<Job>();
    m_job->pdf = m_job->mail = false;
    return *m_job;
}

void ReportPrinter::PageSetup(HWND owner)
{
    PaperJob().SetupPrinter(owner, false, kKind);
}

static int DrawPages(QXPrint& print, const Localisation& localisation, const Report& report,
                     DT_UNITS units)
{
    const ReportCanvas canvas(print, localisation.Language(), report, units);
    int result = 1;
    for (const ReportPage& page : LayOut(report, canvas.LinesPerPage())) {
        if (result <= 0 || print.CancelPrint())
            break;
        result = print.PageStart();
        canvas.Draw(page);
        if (result > 0)
            result = print.PageEnd();
    }
    return result;
}

bool ReportPrinter::Run(HWND owner, const Localisation& localisation, const ReportSubject& subject)
{
    const Report report = MakeReport(localisation, subject);
    if (!m_job->SetupPrint(owner, report.name.c_str()))
        return false;
    const int result = DrawPages(*m_job, localisation, report, subject.settings.units);
    m_job->EndPrint(result);
    return result > 0;
}

void ReportPrinter::Print(HWND owner, const Localisation& localisation,
                          const ReportSubject& subject)
{
    PaperJob();
    Run(owner, localisation, subject);
}

void ReportPrinter::SaveAsPdf(HWND owner, const Localisation& localisation,
                              const ReportSubject& subject)
{
    std::string proposal = subject.name;
    SanitizeNoAsp(proposal.data());
    const auto path = ChooseToSave(owner, localisation, {IDS_PDF_FILTER, "pdf"}, proposal);
    if (!path)
        return;
    PaperJob().PDFSetFileName(path->c_str());
    Run(owner, localisation, subject);
}

void ReportPrinter::Send(HWND owner, const Localisation& localisation, const ReportSubject& subject)
{
    PaperJob().EmailSetTitle(subject.name + ".pdf");
    Run(owner, localisation, subject);
}

bool ReportPrinter::PrintSilently(const Localisation& localisation, const ReportSubject& subject,
                                  const Batch& batch)
{
    Job& job = PaperJob();
    job.landscape = batch.landscape;
    job.SetCopies(batch.copies);
    if (!batch.pdf.empty())
        job.PDFSetFileName(batch.pdf.c_str());
    return Run(nullptr, localisation, subject);
}

}  // namespace pipebench
