#include "print/page_area.h"

#include "config/product_ini.h"
#include "core/to_int.h"
#include "platform/profile.h"

#include <algorithm>
#include <charconv>

namespace qx {

// ---- Margins

static constexpr char kMarginSection[] = "KVL PRINT";

static std::string MarginKey(std::string_view kind)
{
    return "Margins-" + std::string(kind);
}

// The order in which the file has them.
static constexpr int Margins::*kFileOrder[] = {&Margins::left, &Margins::right, &Margins::top,
                                               &Margins::bottom};

// Takes what "%d" reads from the front of `text`.
static bool TakeInt(std::string_view& text, int& value)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    const bool plus = text.starts_with('+') && !text.starts_with("+-");
    const char* const first = text.data() + (plus ? 1 : 0);
    const auto read = std::from_chars(first, text.data() + text.size(), value);
    if (read.ec == std::errc::invalid_argument)
        return false;
    if (read.ec == std::errc::result_out_of_range)
        value = *first == '-' ? INT32_MIN : INT32_MAX;
    text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
    return true;
}

static constexpr double kHundredthsOfMm = 2.54;  // in a thousandth of an inch

int ToHundredthsOfMm(int thousandthsOfInch)
{
    return Rounded(thousandthsOfInch * kHundredthsOfMm);
}

int FromHundredthsOfMm(int hundredthsOfMm)
{
    return Rounded(hundredthsOfMm / kHundredthsOfMm);
}

std::string MarginsText(const Margins& margins)
{
    std::string text;
    for (const auto side : kFileOrder)
        text.append(text.empty() ? "" : ",").append(std::to_string(margins.*side));
    return text;
}

Margins ParseMargins(std::string_view text)
{
    Margins margins;
    for (const auto side : kFileOrder) {
        if (!TakeInt(text, margins.*side) || !text.starts_with(','))
            break;
        text.remove_prefix(1);
    }
    return margins;
}

Margins LoadMargins(std::string_view kind)
{
    constexpr DWORD kSize = 100;
    return ParseMargins(platform::ProfileValue(kMarginSection, MarginKey(kind).c_str(),
                                               MarginsText({}).c_str(), kSize,
                                               ProductIni().c_str()));
}

void SaveMargins(std::string_view kind, const Margins& margins)
{
    platform::WriteProfileString(kMarginSection, MarginKey(kind).c_str(),
                                 MarginsText(margins).c_str(), ProductIni().c_str());
}

// ---- Page

// A margin as measured from the edge of what the printer reaches.
static int Inset(int dpi, int margin, double unprintable)
{
    return std::max(Rounded(static_cast<double>(dpi) * margin / 1000 - unprintable), 0);
}

PageArea PrintableArea(const PageDevice& device, const Margins& margins, int lineHeight)
{
    const double outsideRight =
        static_cast<double>(device.physicalWidth) - device.width - device.offsetX;
    const double outsideBottom =
        static_cast<double>(device.physicalHeight) - device.height - device.offsetY;
    const int right = Inset(device.dpiX, margins.right, outsideRight);
    const int bottom = Inset(device.dpiY, margins.bottom, outsideBottom);
    PageArea area{};
    area.left = Inset(device.dpiX, margins.left, device.offsetX);
    area.top = Inset(device.dpiY, margins.top, device.offsetY);
    area.right = ToInt(std::int64_t{device.width} - right - 1);
    const std::int64_t height = std::int64_t{device.height} - bottom - area.top;
    area.lastLine = lineHeight > 0 && height > 0 ? ToInt(height / lineHeight) - 1 : -1;
    return area;
}

}  // namespace qx
