#include "platform/help_control.h"

#include "platform/directories.h"
#include "platform/library.h"

#include <htmlhelp.h>
#include <string>

namespace qx::platform {

static_assert(static_cast<UINT>(HelpCommand::Topic) == HH_DISPLAY_TOPIC);
static_assert(static_cast<UINT>(HelpCommand::Contents) == HH_DISPLAY_TOC);
static_assert(static_cast<UINT>(HelpCommand::Context) == HH_HELP_CONTEXT);
static_assert(static_cast<UINT>(HelpCommand::CloseAll) == HH_CLOSE_ALL);

using HtmlHelpFunction = HWND WINAPI(HWND, LPCSTR, UINT, DWORD_PTR);

// The path that the control was registered with; empty when it was not. Only a full path counts: a
// bare name would be looked for in folders that others may write to.
static std::string RegisteredPath()
{
    char path[MAX_PATH] = "";
    DWORD size = sizeof path;
    const LSTATUS status = ::RegGetValueA(
        HKEY_CLASSES_ROOT, "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32", nullptr,
        RRF_RT_REG_SZ, nullptr, path, &size);  // an expandable one, too: expanded
    const std::string found(status == ERROR_SUCCESS ? path : "");
    const bool isFull = found.find(":\\") == 1 || found.starts_with("\\\\");
    return isFull ? found : std::string();
}

// The control stays loaded to the end of the process, as its windows do.
static HtmlHelpFunction* LoadFrom(const std::string& path)
{
    constexpr WORD kHtmlHelpA = 14;
    Library library(path.c_str());
    auto* const function = library.Find<HtmlHelpFunction>(MAKEINTRESOURCEA(kHtmlHelpA));
    if (function)
        new Library(std::move(library));
    return function;
}

static HtmlHelpFunction* LoadControl()
{
    const std::string registered = RegisteredPath();
    if (auto* const function = registered.empty() ? nullptr : LoadFrom(registered))
        return function;
    return LoadFrom(SystemLibraryFolder() + "\\hhctrl.ocx");
}

static HWND Send(HWND owner, const char* target, UINT command, DWORD_PTR data)
{
    static HtmlHelpFunction* const htmlHelp = LoadControl();
    return htmlHelp ? htmlHelp(owner, target, command, data) : nullptr;
}

HWND SendHelp(HWND owner, const char* target, HelpCommand command, unsigned contextId)
{
    return Send(owner, target, static_cast<UINT>(command), contextId);
}

HWND SendHelpSearch(HWND owner, const char* target, const char* query)
{
    HH_FTS_QUERY search{};
    search.cbStruct = sizeof search;
    search.pszSearchQuery = query;
    search.fExecute = TRUE;
    return Send(owner, target, HH_DISPLAY_SEARCH, reinterpret_cast<DWORD_PTR>(&search));
}

}  // namespace qx::platform
