// The commands of the main window that print the report on the line.
#include "ids.h"
#include "win32/files.h"
#include "win32/main_window.h"
#include "win32/report_print.h"

namespace pipebench {

void MainWindow::PrintReport(int command)
{
    if (command == IDM_PAGE_SETUP)
        return m_printer.PageSetup(Window());
    const ReportSubject subject = SubjectOf(m_localisation, *m_line, m_settings);
    switch (command) {
        case IDM_PRINT:
            return m_printer.Print(Window(), m_localisation, subject);
        case IDM_SAVE_PDF:
            return m_printer.SaveAsPdf(Window(), m_localisation, subject);
        default:
            return m_printer.Send(Window(), m_localisation, subject);
    }
}

}  // namespace pipebench
