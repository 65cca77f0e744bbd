#include "core/decimal_writer.h"

namespace qx {

// "e+07" becomes "e+007".
static char* WidenExponent(char* text, char* end)
{
    char* const e =
        static_cast<char*>(std::memchr(text, 'e', static_cast<std::size_t>(end - text)));
    if (!e || end - e != 4)
        return end;
    std::memmove(e + 3, e + 2, 2);
    e[2] = '0';
    return end + 1;
}

// Takes the final zeros, and a point in front of nothing, off a text.
static void Trim(char* text, Writer& writer)
{
    if (writer.pointAt < 0)
        return;
    while (writer.end[-1] == '0')
        --writer.end;
    if (writer.end - 1 == text + writer.pointAt) {
        --writer.end;
        writer.pointAt = -1;
    }
}

[[gnu::noinline]] Printed PrintThroughLibrary(double value, std::chars_format format, int precision,
                                              bool trimmed, char point, char* out)
{
    const auto written = std::to_chars(out, out + kPrintedSize - 2, value, format, precision);
    double readBack = value;
    if (std::from_chars(out, written.ptr, readBack).ec == std::errc::result_out_of_range)
        readBack = std::copysign(HUGE_VAL, value);
    Writer writer{out, point};
    writer.end = WidenExponent(out, written.ptr);
    if (auto* dot =
            static_cast<char*>(std::memchr(out, '.', static_cast<std::size_t>(writer.end - out)))) {
        *dot = point;
        writer.pointAt = static_cast<int>(dot - out);
    }
    if (trimmed)
        Trim(out, writer);
    writer.endsInZero = writer.end[-1] == '0';
    return writer.Finish(readBack);
}

Printed PrintFixed(double value, int places, bool trimmed, char point, char* out)
{
    return WriteFixed(value, places, trimmed, point, out);
}

static constexpr int kMaxWriterDigits = 7;

Printed PrintExponent(double value, int places, char point, char* out)
{
    if (places < kMaxWriterDigits)
        return WriteExponent(value, places + 1, false, point, out);
    return PrintThroughLibrary(value, std::chars_format::scientific, places, false, point, out);
}

Printed PrintGeneral(double value, int digits, char point, char* out)
{
    const Significant rounded = digits <= kMaxWriterDigits
                                    ? RoundSignificant(std::fabs(value), digits, kAnyPlaces)
                                    : Significant{};
    const bool oneMore = rounded.number >= kPowersOfTen[static_cast<unsigned>(digits)];
    const int places = rounded.places - oneMore;
    const int exponent = digits - 1 - places;
    if (!rounded.proven || (places > kMaxWriterPlaces && exponent >= -4))
        return PrintThroughLibrary(value, std::chars_format::general, digits, false, point, out);
    if (exponent < -4 || exponent >= digits)
        return WriteExponent(value, digits, true, point, out);
    Writer writer{out, point};
    writer.Sign(value);
    const auto number = static_cast<std::uint32_t>(rounded.number);
    writer.Number(oneMore ? number / 10 : number, places, true);
    return writer.Finish(std::copysign(rounded.Value(), value));
}

}  // namespace qx
