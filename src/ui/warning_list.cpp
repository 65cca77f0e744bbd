// Collecting warnings and handing them on.
#include "config/process.h"
#include "config/template_text.h"

#include <qxutility/core/text.h>
#include <qxutility/ui/warning_list.h>

#include <algorithm>

static constexpr std::size_t kLongestTemplate = 255;

QXWarningList::QXWarningList(HINSTANCE module, int textId, int helpId, HTML_HELP* help,
                             const char* folder)
    : m_textId(textId), m_helpId(help ? helpId : 0), m_module(module), m_help(help)
{
    rstrncpy(m_folder, folder ? folder : "", sizeof m_folder);
}

QXWarningList::QXWarningList(const QXWarningList&) = default;
QXWarningList& QXWarningList::operator=(const QXWarningList&) = default;
QXWarningList::~QXWarningList() = default;

void QXWarningList::SetText(int textId)
{
    m_textId = textId;
}

void QXWarningList::SetHelp(HTML_HELP* help)
{
    m_help = help;
}

void QXWarningList::clear()
{
    m_warnings.clear();
}

void QXWarningList::add(const char* format, const char* insert)
{
    m_warnings.push_back(insert ? qx::ExpandText(format, insert) : format);
}

void QXWarningList::add(int stringId, const char* insert, CLanguage* language)
{
    const CLanguage& speaking = language ? *language : qx::Process().language;
    std::string format = speaking.String(m_module, static_cast<unsigned>(stringId));
    format.resize(std::min(format.size(), kLongestTemplate));
    add(format.c_str(), insert);
}

const char* QXWarningList::text(int index) const
{
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < m_warnings.size() ? m_warnings[place].c_str() : nullptr;
}

std::vector<std::string> QXWarningList::list() const
{
    return m_warnings;
}

bool QXWarningList::list(char* buffer, unsigned size, const char* separator) const
{
    const std::string behind(separator ? separator : "", separator && *separator ? 1 : 0);
    std::string all;
    for (const std::string& warning : m_warnings)
        all.append(warning).append(behind);
    rstrncpy(buffer, all.c_str(), size);
    return all.size() < size;
}
