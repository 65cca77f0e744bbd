#include "help_control.h"

#include <htmlhelp.h>
#include <sstream>
#include <string>

static std::ostringstream calls;
static std::string taken;

static void Note(const HH_FTS_QUERY& query)
{
    const bool restIsEmpty = !query.fUniCodeStrings && !query.iProximity && !query.fStemmedSearch &&
                             !query.fTitleOnly && !query.pszWindow;
    calls << query.pszSearchQuery << (query.cbStruct == sizeof query ? "" : ", of another size")
          << (query.fExecute ? "" : ", not executed") << (restIsEmpty ? "" : ", and more");
}

extern "C" {

HWND WINAPI HelpA(HWND owner, const char* target, UINT command, DWORD_PTR data)
{
    calls << command << " " << (target ? target : "(none)") << " ";
    if (command == HH_DISPLAY_SEARCH)
        Note(*reinterpret_cast<const HH_FTS_QUERY*>(data));
    else
        calls << data;
    if (owner)
        calls << " for " << ::GetDlgCtrlID(owner);
    calls << "\n";
    return owner;
}

const char* TakeCalls()
{
    taken = calls.str();
    calls.str({});
    return taken.c_str();
}
}
