// Types of help, and the requests that show it.
#include "config/process.h"
#include "core/ascii_case.h"
#include "platform/help_control.h"
#include "platform/message_box.h"
#include "platform/path_search.h"

#include <qxutility/config/help.h>
#include <qxutility/config/startup.h>

#include <algorithm>

using qx::platform::HelpCommand;
using qx::platform::SendHelp;

static constexpr std::size_t kRememberedName = 30;
static constexpr int kErrorBuffer = 512;
static constexpr int kNotShown = 111;  // the library's string

static std::string TextOf(const char* text)
{
    return text ? text : "";
}

// ---- A type of help

using HelpType = HTML_HELP::HELPTYPES;

HelpType::HELPTYPES() = default;
HelpType::~HELPTYPES() = default;

HelpType::HELPTYPES(const HELPTYPES& other)
    : m_name(other.m_name),
      m_file(other.m_file),
      m_window(other.m_window),
      m_path(other.m_path),
      m_finder(other.m_finder ? other.m_finder->Clone() : nullptr)
{
}

HelpType& HelpType::operator=(const HELPTYPES& other)
{
    HELPTYPES copy(other);
    std::swap(m_name, copy.m_name);
    m_file.swap(copy.m_file);
    m_window.swap(copy.m_window);
    m_path.swap(copy.m_path);
    m_finder.swap(copy.m_finder);
    return *this;
}

void HelpType::Add(const char* name, const char* file, const HelpFileFinder* finder,
                   const char* window)
{
    m_name = name ? std::optional<std::string>(name) : std::nullopt;
    m_file = TextOf(file);
    m_window = TextOf(window);
    const std::string found = qx::platform::FindFile(m_file.c_str(), ".CHM");
    m_path = found.empty() || found.size() >= MAX_PATH ? m_file : found;
    m_finder.reset(finder ? finder->Clone() : new HelpFileFinder);
}

bool HelpType::empty() const
{
    return !m_name;
}

bool HelpType::compare(const char* name) const
{
    return m_name && name && qx::EqualIgnoringCase(m_name->c_str(), name);
}

const char* HelpType::GetWindow() const
{
    return m_window.c_str();
}

std::string HelpType::GetFile() const
{
    return m_path.empty() ? std::string() : m_finder->Find(m_path);
}

// ---- All types of an application

HTML_HELP::HTML_HELP() : m_errors(true), m_owner(nullptr)
{
    ++qx::Process().helpObjects;
}

HTML_HELP::HTML_HELP(const HTML_HELP& other)
    : m_errors(other.m_errors),
      m_owner(other.m_owner),
      m_types(other.m_types),
      m_lastType(other.m_lastType)
{
    ++qx::Process().helpObjects;
}

HTML_HELP& HTML_HELP::operator=(const HTML_HELP&) = default;

HTML_HELP::~HTML_HELP()
{
    if (--qx::Process().helpObjects == 0)
        SendHelp(nullptr, nullptr, HelpCommand::CloseAll);
}

void HTML_HELP::EnableErrors()
{
    m_errors = true;
}

void HTML_HELP::DisableErrors()
{
    m_errors = false;
}

void HTML_HELP::SetWindow(HWND owner)
{
    m_owner = owner;
}

void HTML_HELP::AddType(const char* name, const char* file, const HelpFileFinder* finder,
                        const char* window)
{
    const auto known = std::find_if(m_types.begin(), m_types.end(),
                                    [=](const HELPTYPES& type) { return type.compare(name); });
    HELPTYPES& type = known != m_types.end() ? *known : m_types.emplace_back();
    type.Add(name, file, finder, window);
}

void HTML_HELP::AddType(const char* name, const char* file, const char* window)
{
    AddType(name, file, nullptr, window);
}

void HTML_HELP::AddType(const char* name, HINSTANCE module, int stringId, const char* window)
{
    char file[MAX_PATH] = "";
    qx::Process().language.String(module, static_cast<unsigned>(stringId), file, sizeof file);
    AddType(name, file, window);
}

// ---- Requests

HWND HTML_HELP::Open(const char* type, unsigned contextId)
{
    static constexpr char kAction[] = "Opening a context page";
    const std::optional<HELPTYPES> found = FindType(type);
    if (!found)
        return CheckErrors(nullptr, kAction);
    const std::string target = found->GetFile() + ">" + found->GetWindow();
    UseType(type);
    return CheckErrors(SendHelp(m_owner, target.c_str(), HelpCommand::Context, contextId), kAction);
}

HWND HTML_HELP::Search(const char* type, const char* query)
{
    static constexpr char kAction[] = "Searching the file";
    const std::optional<HELPTYPES> found = FindType(type);
    if (!found)
        return CheckErrors(nullptr, kAction);
    const std::string file = found->GetFile(), text = TextOf(query);
    UseType(type);
    SendHelp(m_owner, file.c_str(), HelpCommand::Topic);
    return CheckErrors(qx::platform::SendHelpSearch(m_owner, file.c_str(), text.c_str()), kAction);
}

HWND HTML_HELP::Contents(const char* type)
{
    const std::optional<HELPTYPES> found = FindType(type);
    const std::string file = found ? found->GetFile() : std::string();
    if (file.empty())
        return nullptr;
    UseType(type);
    SendHelp(m_owner, file.c_str(), HelpCommand::Topic);
    return CheckErrors(SendHelp(m_owner, file.c_str(), HelpCommand::Contents),
                       "Displaying help contents");
}

// The first type stands in for one that is not registered: its file is the application's main one.
// A copy, as the application's finder may register others while it is asked.
std::optional<HelpType> HTML_HELP::FindType(const char* name) const
{
    const auto found = std::find_if(m_types.begin(), m_types.end(),
                                    [=](const HELPTYPES& type) { return type.compare(name); });
    if (found != m_types.end())
        return *found;
    return m_types.empty() ? std::nullopt : std::optional(m_types.front());
}

void HTML_HELP::UseType(const char* name)
{
    const std::string used = TextOf(name).substr(0, kRememberedName);
    if (!m_lastType.empty() && used != m_lastType)
        SendHelp(nullptr, nullptr, HelpCommand::CloseAll);
    m_lastType = used;
}

// The action is there for a string that has a place for it; the library's own has none.
HWND HTML_HELP::CheckErrors(HWND shown, const char* action) const
{
    if (shown || !m_errors)
        return shown;
    char text[kErrorBuffer] = "";
    FormatString(nullptr, kNotShown, text, sizeof text, action);
    qx::platform::ShowMessageBox(m_owner, text, "Help", MB_ICONHAND);
    return nullptr;
}
