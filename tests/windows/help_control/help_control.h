// The help control of the tests: shows nothing and notes what it is asked for.
#pragma once

#include <windows.h>

struct HelpCall {
    HWND owner;
    char target[300];  // "(null)" for none
    UINT command;
    DWORD data;     // 0 for a search
    int querySize;  // of a search's record; the rest stands in it
    char query[100];
    BOOL isExecuted, isRestEmpty;
};

// Exported by name: the calls so far (at most 100), of which there are then none; what the
// control returns from now on.
using TakeHelpCalls = int(HelpCall* calls);
using AnswerHelpWith = void(HWND window);
