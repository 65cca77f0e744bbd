// What a print job has to do with mail.
#include "print/mail_texts.h"
#include "print/win32/mail.h"
#include "print/win32/mail_report.h"

#include <qxutility/print/print_job.h>

using namespace qx;

void QXPrint::EmailSetTitle(std::string title)
{
    mail = true;
    const TemporaryReport report = NewTemporaryReport().value_or(TemporaryReport());
    SetReportPath(report.pdf);
    m_placeholder = report.placeholder;
    m_mailTitle = AttachmentName(title);
}

void QXPrint::EmailSetTitle(const char* title)
{
    EmailSetTitle(std::string(title ? title : ""));
}

int QXPrint::EmailMessage(HWND owner, const char* attachmentPath, const char* attachmentName,
                          const char* subject, const char* noteText, const char* recipientAddress,
                          const char* recipientName)
{
    const auto cause = SendMail(owner, {attachmentPath, attachmentName, subject, noteText,
                                        recipientAddress, recipientName});
    if (cause)
        ShowMailFault(owner, *cause);
    return cause ? 0 : 1;
}
