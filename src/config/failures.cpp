// What a person is told when something goes wrong, and texts made of numbered strings.
#include "config/process.h"
#include "config/template_text.h"
#include "platform/message_box.h"

#include <qxutility/config/startup.h>
#include <qxutility/core/text.h>

#include <algorithm>
#include <span>

using qx::Process;

static constexpr std::size_t kMessageBuffer = 255;  // of a message's string, terminator included
static constexpr std::size_t kIgnoredLines = 10;
static constexpr UINT kIconBits = 0xF0;

static std::string TextOf(const char* text)
{
    return text ? text : "";
}

static std::string StringOf(HINSTANCE module, int stringId)
{
    return Process().language.String(module, static_cast<unsigned>(stringId));
}

// A string of a module as it arrives in a buffer of `size` bytes.
static std::string StringCutTo(HINSTANCE module, int stringId, std::size_t size)
{
    std::string text = StringOf(module, stringId);
    text.resize(std::min(text.size(), size - 1));
    return text;
}

// ---- Assertions

static void IgnoreLine(int line, std::span<int> ignoredLines, bool& silenced)
{
    const auto place = std::find(ignoredLines.begin(), ignoredLines.end(), 0);
    if (place != ignoredLines.end())
        *place = line;
    else
        silenced = true;
}

static int AskAboutAssertion(const std::string& text, int line, int* ignoredLines, bool& silenced)
{
    const std::span<int> ignored(ignoredLines, ignoredLines ? kIgnoredLines : 0);
    if (silenced || std::find(ignored.begin(), ignored.end(), line) != ignored.end())
        return IDNO;
    const int answer = qx::platform::ShowMessageBox(nullptr, text.c_str(), "DEBUG BUILD",
                                                    MB_YESNOCANCEL | MB_ICONHAND | MB_SYSTEMMODAL);
    if (answer == IDCANCEL)
        IgnoreLine(line, ignored, silenced);
    return answer;
}

static std::string LineNumber(int line)
{
    return std::to_string(static_cast<unsigned>(line));
}

void SetAssertsOff()
{
    Process().assertsOff = true;
}

int AssertMessage(const char* file, int line, const char* name, int* ignoredLines,
                  const char* expression)
{
    if (Process().assertsOff)
        return IDNO;
    const std::string text = "**" + TextOf(name) + "**\nExpression \"" + TextOf(expression) +
                             "\" failed.\nLine " + LineNumber(line) + " of " + TextOf(file) +
                             ".\n\nDrop to debugger?";
    return AskAboutAssertion(text, line, ignoredLines, Process().assertSilenced[0]);
}

int AssertMessage(const char* file, int line, const char* name, int* ignoredLines)
{
    const std::string title = "**" + TextOf(name) + "**";
    const std::string place = LineNumber(line) + " of " + TextOf(file);
    qx::platform::DebugOutput((title + ", line " + place).c_str());
    qx::platform::DebugOutput("\n");
    return AskAboutAssertion(title + "\nLine " + place + ".\nDrop to debugger?", line, ignoredLines,
                             Process().assertSilenced[1]);
}

// ---- Error boxes

static std::string ErrorText(HINSTANCE module, int stringId, const std::string& text)
{
    if (stringId == 0)
        return text;
    const std::string string = StringCutTo(module, stringId, kMessageBuffer);
    if (string.find('%') != std::string::npos)
        return qx::ExpandText(string, text);
    return text.empty() ? string : string + " " + text;
}

int ErrorMessage(HINSTANCE module, const char* title, HWND owner, int stringId, int boxStyle,
                 const char* text)
{
    UINT style = static_cast<UINT>(boxStyle);
    if ((style & kIconBits) == 0)
        style |= MB_ICONHAND;
    const std::string message = ErrorText(module, stringId, TextOf(text));
    return qx::platform::ShowMessageBox(owner, message.c_str(), title, style);
}

int ErrorMessage(HINSTANCE module, const std::string& title, HWND owner, int stringId, int boxStyle,
                 const char* text)
{
    return ErrorMessage(module, title.c_str(), owner, stringId, boxStyle, text);
}

// ---- Strings as templates

char* FormatString(HINSTANCE module, int stringId, char* out, int size, const char* argument)
{
    if (size <= 0)
        return out;
    const std::string text = TextOf(argument);
    const auto room = static_cast<std::size_t>(size);
    if (text.size() < room) {
        const std::string format = StringCutTo(module, stringId, room - text.size());
        return rstrncpy(out, qx::ExpandText(format, text).c_str(), static_cast<unsigned>(size));
    }
    const std::string string = StringOf(module, stringId);
    return string.empty() ? out : rstrncpy(out, string.c_str(), static_cast<unsigned>(size));
}

char* FormatString(HINSTANCE module, int stringId, char* out, int size, double* value)
{
    constexpr int kPointerText = 10;  // kept free for it
    if (size <= kPointerText)
        return out;
    const std::string format =
        StringCutTo(module, stringId, static_cast<std::size_t>(size - kPointerText));
    return rstrncpy(out, qx::ExpandPointer(format, value).c_str(), static_cast<unsigned>(size));
}

char* LoadFileFilter(HINSTANCE module, char* buffer, int stringId)
{
    std::string filter = StringCutTo(module, stringId, kMessageBuffer);
    std::replace(filter.begin(), filter.end(), '|', '\0');
    if (!filter.empty() && filter.back() != '\0' && filter.size() + 1 < kMessageBuffer)
        filter.push_back('\0');
    filter.push_back('\0');
    std::copy(filter.begin(), filter.end(), buffer);
    return buffer;
}

// ---- Language

void QXUtility_SetLanguage(DWORD lcid)
{
    Process().language.SetLanguage(lcid);
}
