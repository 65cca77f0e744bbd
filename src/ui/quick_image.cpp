#include "ui/quick_image.h"

#include "core/ascii_case.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace qx {

static constexpr int kMargin = 8, kGap = 10;  // pixels: before the icon, between icon and caption
static constexpr int kMostResource = 0xFFFF;

QuickPlacement Place(const QuickImage& image, SIZE button, SIZE icon)
{
    const bool both = image.icon && image.caption;
    const int width = static_cast<int>(icon.cx), height = static_cast<int>(icon.cy);
    const int x = both ? kMargin : static_cast<int>(button.cx / 2) - width / 2;
    const int y = static_cast<int>(button.cy / 2) - height / 2;
    const int left = both ? kMargin + width + kGap : static_cast<int>(button.cx / 2);
    const CaptionAlign align = both ? CaptionAlign::Left : CaptionAlign::Center;

    const QuickIcon iconWishes = image.icon.value_or(QuickIcon{});
    const QuickCaption captionWishes = image.caption.value_or(QuickCaption{});
    return {{iconWishes.x.value_or(x), iconWishes.y.value_or(y)},
            captionWishes.left.value_or(left),
            captionWishes.align.value_or(align)};
}

std::optional<CaptionAlign> AlignNamed(const std::string& name)
{
    if (EqualIgnoringCase(name.c_str(), "left"))
        return CaptionAlign::Left;
    if (EqualIgnoringCase(name.c_str(), "right"))
        return CaptionAlign::Right;
    if (EqualIgnoringCase(name.c_str(), "center"))
        return CaptionAlign::Center;
    return {};
}

std::optional<int> IconResource(const std::string& source)
{
    if (source.empty() || source.front() < '0' || source.front() > '9')
        return {};
    int number = 0;
    const auto result = std::from_chars(source.data(), source.data() + source.size(), number);
    return result.ec == std::errc() && number <= kMostResource ? number : 0;
}

// `prefix` in lower case.
static bool StartsWith(std::string_view text, std::string_view prefix)
{
    text = text.substr(0, prefix.size());
    return std::equal(text.begin(), text.end(), prefix.begin(), prefix.end(),
                      [](char a, char b) { return FoldCase(a) == b; });
}

std::string IconExtension(const std::string& source, const std::string& file)
{
    if (StartsWith(source, "www.") || StartsWith(source, "http:"))
        return ".htm";
    if (StartsWith(source, "mailto:"))
        return ".eml";
    const std::size_t name = file.find_last_of("\\/") + 1;  // 0 when there is no folder
    const std::size_t dot = file.find_last_of('.');
    return dot != std::string::npos && dot >= name ? file.substr(dot) : std::string();
}

}  // namespace qx
