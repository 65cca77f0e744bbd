#include "help_control.h"

#include <cstdio>
#include <cstring>
#include <htmlhelp.h>
#include <iterator>
#include <utility>

static HelpCall calls[100];
static int count;
static HWND answer;

static void NoteSearch(HelpCall& call, const HH_FTS_QUERY& search)
{
    call.querySize = search.cbStruct;
    std::snprintf(call.query, sizeof call.query, "%s", search.pszSearchQuery);
    call.isExecuted = search.fExecute;
    call.isRestEmpty = !search.fUniCodeStrings && !search.iProximity && !search.fStemmedSearch &&
                       !search.fTitleOnly && !search.pszWindow;
}

extern "C" {

HWND WINAPI HelpA(HWND owner, const char* target, UINT command, DWORD_PTR data)
{
    if (count == std::ssize(calls))
        return nullptr;
    HelpCall& call = calls[count++];
    call = {};
    call.owner = owner;
    call.command = command;
    std::snprintf(call.target, sizeof call.target, "%s", target ? target : "(null)");
    if (command == HH_DISPLAY_SEARCH)
        NoteSearch(call, *reinterpret_cast<const HH_FTS_QUERY*>(data));
    else
        call.data = static_cast<DWORD>(data);
    return answer;
}

int TakeCalls(HelpCall* taken)
{
    std::memcpy(taken, calls, sizeof calls);
    return std::exchange(count, 0);
}

void AnswerWith(HWND window)
{
    answer = window;
}
}
