// Stands in for the system's help control, which shows no pages under Wine unless an HTML engine is
// installed there: opens compiled help and shows the text of its pages in a window of its own.
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <htmlhelp.h>
#include <objbase.h>
#include <string>
#include <utility>
#include <vector>

// The system's storages of compiled help; of their functions only the one that opens a file is
// used.
static constexpr GUID kStorageClass = {
    0x5D02926A, 0x212E, 0x11D0, {0x9D, 0xF9, 0x00, 0xA0, 0xC9, 0x22, 0xE6, 0xEC}};
static constexpr GUID kStorageInterface = {
    0x88CC31DE, 0x27AB, 0x11D0, {0x9D, 0xF9, 0x00, 0xA0, 0xC9, 0x22, 0xE6, 0xEC}};

static constexpr int kOpenStorage = 7;  // place in the interface's table
using OpenStorage = HRESULT(STDMETHODCALLTYPE*)(IUnknown* object, const WCHAR* name,
                                                IStorage* priority, DWORD mode, SNB exclude,
                                                DWORD reserved, IStorage** storage);

static HWND viewer;
static std::string page;

// ---- Reading

static IStorage* OpenHelp(const std::string& file)
{
    ::CoInitialize(nullptr);
    void* opener = nullptr;
    if (FAILED(::CoCreateInstance(kStorageClass, nullptr, CLSCTX_INPROC_SERVER, kStorageInterface,
                                  &opener)))
        return nullptr;
    WCHAR name[MAX_PATH] = L"";
    ::MultiByteToWideChar(CP_ACP, 0, file.c_str(), -1, name, MAX_PATH);
    IStorage* storage = nullptr;
    void* const* functions = *static_cast<void***>(opener);
    reinterpret_cast<OpenStorage>(functions[kOpenStorage])(
        static_cast<IUnknown*>(opener), name, nullptr, STGM_READ, nullptr, 0, &storage);
    static_cast<IUnknown*>(opener)->Release();
    return storage;
}

static std::string Read(IStorage& storage, const std::string& name)
{
    IStream* stream = nullptr;
    const std::wstring wide(name.begin(), name.end());
    if (FAILED(storage.OpenStream(wide.c_str(), nullptr, STGM_READ, 0, &stream)))
        return {};
    std::string bytes(65'536, '\0');
    ULONG size = 0;
    stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &size);
    stream->Release();
    bytes.resize(size);
    return bytes;
}

static std::uint32_t NumberAt(const std::string& bytes, std::size_t place)
{
    std::uint32_t number = 0;
    if (place + sizeof number <= bytes.size())
        std::memcpy(&number, bytes.data() + place, sizeof number);
    return number;
}

// The page of a context number: "#IVB" has, behind its size, pairs of a number and the place of the
// page's name in "#STRINGS".
static std::string PageOf(IStorage& storage, std::uint32_t context)
{
    const std::string pages = Read(storage, "#IVB"), strings = Read(storage, "#STRINGS");
    for (std::size_t place = 4; place + 8 <= pages.size(); place += 8) {
        const std::uint32_t name = NumberAt(pages, place + 4);
        if (NumberAt(pages, place) == context && name < strings.size())
            return strings.c_str() + name;
    }
    return "start.html";
}

// The lines of a page's body, without tags; the first is its heading.
static std::vector<std::string> LinesOf(const std::string& html)
{
    std::vector<std::string> lines;
    std::string line;
    bool inTag = false;
    for (const char c : html.substr(std::min(html.find("<body"), html.size()))) {
        if (c == '<' && !line.empty())
            lines.push_back(std::exchange(line, {}));
        if (c == '<' || c == '>')
            inTag = c == '<';
        else if (!inTag && c != '\n' && c != '\r')
            line += c;
    }
    return lines;
}

// ---- Showing

static void DrawLine(HDC dc, const std::string& text, int height, int weight, COLORREF colour,
                     RECT& area)
{
    const HFONT font = ::CreateFontA(-height, 0, 0, 0, weight, 0, 0, 0, ANSI_CHARSET, 0, 0,
                                     CLEARTYPE_QUALITY, FF_SWISS, "Arial");
    const HGDIOBJ previous = ::SelectObject(dc, font);
    ::SetTextColor(dc, colour);
    area.top += height / 2 + ::DrawTextA(dc, text.c_str(), -1, &area, DT_WORDBREAK | DT_NOPREFIX);
    ::SelectObject(dc, previous);
    ::DeleteObject(font);
}

static void Paint(HWND window)
{
    PAINTSTRUCT paint;
    const HDC dc = ::BeginPaint(window, &paint);
    RECT area;
    ::GetClientRect(window, &area);
    ::FillRect(dc, &area, ::GetSysColorBrush(COLOR_WINDOW));
    ::InflateRect(&area, -18, -16);
    ::SetBkMode(dc, TRANSPARENT);
    bool isHeading = true;
    for (const std::string& line : LinesOf(page)) {
        DrawLine(dc, line, isHeading ? 22 : 14, isHeading ? FW_BOLD : FW_NORMAL,
                 isHeading ? RGB(16, 52, 92) : RGB(0, 0, 0), area);
        isHeading = false;
    }
    ::EndPaint(window, &paint);
}

static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PAINT)
        return Paint(window), 0;
    if (message == WM_DESTROY)
        viewer = nullptr;
    return ::DefWindowProcA(window, message, wParam, lParam);
}

// The title tells which file and which of its windows is shown.
static void Show(HWND owner, const std::string& title)
{
    WNDCLASSA info{};
    info.lpfnWndProc = Procedure;
    info.hInstance = ::GetModuleHandleA(nullptr);
    info.lpszClassName = "PIPEBENCH_HELP";
    info.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    ::RegisterClassA(&info);
    if (!viewer)
        viewer = ::CreateWindowExA(0, info.lpszClassName, "", WS_OVERLAPPEDWINDOW, 570, 545, 520,
                                   270, owner, nullptr, info.hInstance, nullptr);
    ::SetWindowTextA(viewer, title.c_str());
    ::InvalidateRect(viewer, nullptr, TRUE);
    ::ShowWindow(viewer, SW_SHOW);
    ::SetForegroundWindow(viewer);
}

// ---- The control's one function

static HWND Open(HWND owner, const std::string& target, std::uint32_t context)
{
    const std::size_t bar = target.find('>');
    const std::string file = target.substr(0, bar);
    IStorage* storage = OpenHelp(file);
    if (!storage)
        return nullptr;
    page = Read(*storage, PageOf(*storage, context));
    storage->Release();
    const std::string name = file.substr(file.find_last_of('\\') + 1);
    Show(owner, bar == std::string::npos ? name : name + " - " + target.substr(bar + 1));
    return viewer;
}

extern "C" HWND WINAPI ShowHelp(HWND owner, const char* target, UINT command, DWORD_PTR data)
{
    switch (command) {
        case HH_CLOSE_ALL:
            if (viewer)
                ::DestroyWindow(viewer);
            return nullptr;
        case HH_HELP_CONTEXT:
            return Open(owner, target, static_cast<std::uint32_t>(data));
        case HH_DISPLAY_TOPIC:
        case HH_DISPLAY_TOC:
            return Open(owner, target, 0);
        default:
            return nullptr;
    }
}
