// Pictures drawn from an icon and a caption.
#include "platform/path_search.h"
#include "ui/win32/button_pictures.h"

#include <qxutility/core/text.h>

#include <shellapi.h>

#include <algorithm>

namespace qx::win32 {

namespace {

struct IconTraits {
    static HICON None() { return nullptr; }
    static void Close(HICON icon) { ::DestroyIcon(icon); }
};
using IconHandle = UniqueHandle<IconTraits>;

// What all three pictures of a button show.
struct Face {
    SIZE size;
    IconHandle icon;
    SIZE iconSize;
    FontHandle font;
    std::string caption;
    QuickPlacement place;
};

}  // namespace

static constexpr std::int64_t kMostPixels = 8192 * 4320;  // of a button
static constexpr int kMostFontHeight = 1000;              // pixels

// ---- The icon

static SIZE IconSize(bool isSmall)
{
    return {::GetSystemMetrics(isSmall ? SM_CXSMICON : SM_CXICON),
            ::GetSystemMetrics(isSmall ? SM_CYSMICON : SM_CYICON)};
}

static IconHandle ShellIcon(const char* path, UINT flags)
{
    SHFILEINFOA info{};
    if (!::SHGetFileInfoA(path, FILE_ATTRIBUTE_NORMAL, &info, sizeof info, SHGFI_ICON | flags))
        return IconHandle();
    return IconHandle(info.hIcon);
}

static IconHandle FileIcon(const QuickIcon& icon)
{
    char file[MAX_PATH];
    SplitName(icon.source.c_str(), file, nullptr);
    const UINT size = icon.isSmall ? SHGFI_SMALLICON : SHGFI_LARGEICON;
    const std::string path = platform::FindProgram(file, ".exe");
    if (!path.empty()) {
        if (IconHandle found = ShellIcon(path.c_str(), size))
            return found;
    }
    const std::string extension = IconExtension(icon.source, file);
    if (extension.empty())
        return IconHandle(::CopyIcon(::LoadIconA(nullptr, IDI_WINLOGO)));
    return ShellIcon(extension.c_str(), size | SHGFI_USEFILEATTRIBUTES);
}

static IconHandle IconOf(const QuickIcon& icon, HINSTANCE module)
{
    const auto number = IconResource(icon.source);
    if (!number)
        return FileIcon(icon);
    if (*number == 0)
        return IconHandle();
    const SIZE size = IconSize(icon.isSmall);
    return IconHandle(static_cast<HICON>(
        ::LoadImageA(module, MAKEINTRESOURCEA(*number), IMAGE_ICON, size.cx, size.cy, 0)));
}

// ---- Drawing

static FontHandle CaptionFont(int height)
{
    return FontHandle(::CreateFontA(std::clamp(height, -kMostFontHeight, kMostFontHeight), 0, 0, 0,
                                    FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                    DEFAULT_PITCH | FF_SWISS, "ARIAL"));
}

static Face FaceOf(const QuickImage& image, SIZE size, HINSTANCE module)
{
    Face face{size,         IconHandle(), IconSize(image.icon && image.icon->isSmall),
              FontHandle(), "",           {}};
    face.place = Place(image, size, face.iconSize);
    if (image.icon)
        face.icon = IconOf(*image.icon, module);
    if (image.caption) {
        face.caption = image.caption->text;
        face.font = CaptionFont(image.caption->fontHeight);
    }
    return face;
}

static UINT FormatOf(CaptionAlign align)
{
    switch (align) {
        case CaptionAlign::Center:
            return DT_CENTER;
        case CaptionAlign::Right:
            return DT_RIGHT;
        default:
            return DT_LEFT;
    }
}

static void DrawCaption(HDC dc, const Face& face, int shift)
{
    if (!face.font)
        return;
    RECT area{face.place.captionLeft, 0, face.size.cx, face.size.cy};
    ::OffsetRect(&area, shift, shift);
    const Selection font(dc, face.font.get());
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
    ::DrawTextA(dc, face.caption.c_str(), -1, &area,
                DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | FormatOf(face.place.align));
}

static void DrawFace(HDC dc, const Face& face, int shift)
{
    const RECT all{0, 0, face.size.cx, face.size.cy};
    ::FillRect(dc, &all, ::GetSysColorBrush(COLOR_BTNFACE));
    DrawCaption(dc, face, shift);
    if (face.icon)
        ::DrawIconEx(dc, face.place.icon.x + shift, face.place.icon.y + shift, face.icon.get(),
                     face.iconSize.cx, face.iconSize.cy, 0, nullptr, DI_NORMAL);
}

static void DrawState(HDC dc, const Face& face, ButtonState state, bool border)
{
    RECT all{0, 0, face.size.cx, face.size.cy};
    DrawFace(dc, face, state == ButtonState::Pushed ? 2 : 0);
    if (state == ButtonState::Pushed) {
        ::DrawEdge(dc, &all, EDGE_SUNKEN, BF_TOPLEFT);
        ::DrawEdge(dc, &all, EDGE_SUNKEN, BF_BOTTOMRIGHT);
    } else if (border || state == ButtonState::Rollover) {
        ::DrawEdge(dc, &all, EDGE_RAISED, BF_RECT);
    }
}

std::array<BitmapHandle, 3> DrawPictures(const QuickImage& image, SIZE size, HINSTANCE module,
                                         HWND window)
{
    std::array<BitmapHandle, 3> pictures;
    if (size.cx <= 0 || size.cy <= 0 || std::int64_t{size.cx} * size.cy > kMostPixels)
        return pictures;
    const Face face = FaceOf(image, size, module);
    const HDC screen = ::GetDC(window);
    const MemoryDc dc(::CreateCompatibleDC(screen));
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        pictures[i] = BitmapHandle(::CreateCompatibleBitmap(screen, size.cx, size.cy));
        if (!pictures[i])
            continue;
        const Selection bitmap(dc.get(), pictures[i].get());
        DrawState(dc.get(), face, static_cast<ButtonState>(i), image.border);
    }
    ::ReleaseDC(window, screen);
    return pictures;
}

}  // namespace qx::win32
