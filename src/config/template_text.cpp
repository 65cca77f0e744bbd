#include "config/template_text.h"

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <optional>

namespace qx {

static constexpr std::size_t kLargestField = 4095;

namespace {

// One conversion of a template.
struct Conversion {
    std::string_view text;   // all of it, from the '%' to the letter
    std::string_view flags;  // "-+ #0"
    std::size_t width = 0;
    std::optional<std::size_t> precision;
    std::string_view length;  // "ll", "h", "I64" ...
    char letter = '\0';       // '\0' when it is none, or too wide

    bool Has(char flag) const { return flags.find(flag) != std::string_view::npos; }
};

// Takes characters from the front of a text.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    std::string_view TakeAnyOf(std::string_view set)
    {
        const std::size_t start = m_position;
        m_position = std::min(m_text.find_first_not_of(set, start), m_text.size());
        return m_text.substr(start, m_position - start);
    }
    bool Take(std::string_view expected)
    {
        const bool found = m_text.substr(m_position, expected.size()) == expected;
        if (found)
            m_position += expected.size();
        return found;
    }
    char TakeOne() { return m_position < m_text.size() ? m_text[m_position++] : '\0'; }
    std::string_view Taken() const { return m_text.substr(0, m_position); }

  private:
    std::string_view m_text;
    std::size_t m_position = 0;
};

}  // namespace

// A number of columns; one too large to be used is one more than the largest.
static std::size_t FieldSize(std::string_view digits)
{
    std::size_t value = 0;
    for (const char digit : digits)
        value = std::min(value * 10 + static_cast<std::size_t>(digit - '0'), kLargestField + 1);
    return value;
}

static std::string_view TakeLength(Scanner& scanner)
{
    for (const std::string_view length : {"hh", "h", "ll", "l", "I64", "I32", "I", "z", "t", "j"}) {
        if (scanner.Take(length))
            return length;
    }
    return {};
}

// The conversion that begins at the '%' with which `format` begins.
static Conversion ParseConversion(std::string_view format)
{
    static constexpr std::string_view kDigits = "0123456789";
    Conversion conversion;
    Scanner scanner(format);
    scanner.TakeOne();
    conversion.flags = scanner.TakeAnyOf("-+ #0");
    conversion.width = FieldSize(scanner.TakeAnyOf(kDigits));
    if (scanner.Take("."))
        conversion.precision = FieldSize(scanner.TakeAnyOf(kDigits));
    conversion.length = TakeLength(scanner);
    conversion.letter = scanner.TakeOne();
    if (conversion.width > kLargestField || conversion.precision.value_or(0) > kLargestField)
        conversion.letter = '\0';
    conversion.text = scanner.Taken();
    return conversion;
}

// Copies a template; `print` is offered each conversion but "%%" until it has printed one.
template <class Print>
static std::string Expand(std::string_view format, Print print)
{
    std::string result;
    bool printed = false;
    while (!format.empty()) {
        const std::size_t plain = std::min(format.find('%'), format.size());
        result += format.substr(0, plain);
        format.remove_prefix(plain);
        if (format.empty())
            break;
        const Conversion conversion = ParseConversion(format);
        if (conversion.text == "%%") {
            result += '%';
        } else if (std::optional<std::string> text;
                   !printed && (text = print(conversion)).has_value()) {
            result += *text;
            printed = true;
        } else {
            // Only the sign itself: what follows may begin a conversion that can be printed.
            result += '%';
            format.remove_prefix(1);
            continue;
        }
        format.remove_prefix(conversion.text.size());
    }
    return result;
}

static std::string Padded(const Conversion& conversion, std::string text)
{
    if (text.size() < conversion.width) {
        const std::size_t missing = conversion.width - text.size();
        text.insert(conversion.Has('-') ? text.size() : 0, missing, ' ');
    }
    return text;
}

std::string ExpandText(std::string_view format, std::string_view argument)
{
    return Expand(format, [&](const Conversion& conversion) -> std::optional<std::string> {
        if (conversion.letter != 's' || !conversion.length.empty())
            return {};
        const std::size_t most = conversion.precision.value_or(argument.size());
        return Padded(conversion, std::string(argument.substr(0, most)));
    });
}

// The number of bits that a conversion with this length modifier prints.
static int BitsOf(std::string_view length)
{
    const auto bits = [](std::size_t bytes) { return static_cast<int>(bytes * 8); };
    if (length == "hh")
        return bits(sizeof(char));
    if (length == "h")
        return bits(sizeof(short));
    if (length == "l")
        return bits(sizeof(long));
    if (length == "z" || length == "t" || length == "I")
        return bits(sizeof(std::size_t));
    return length == "ll" || length == "j" || length == "I64" ? 64 : bits(sizeof(int));
}

static std::string Digits(std::uint64_t value, char letter)
{
    const int base = letter == 'o' ? 8 : letter == 'x' || letter == 'X' ? 16 : 10;
    char digits[24];
    char* const end = std::to_chars(digits, digits + sizeof digits, value, base).ptr;
    std::string result(digits, end);
    if (letter == 'X') {
        for (char& digit : result)
            digit = digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    }
    return result;
}

// What printf puts before the digits: sign or base.
static std::string Prefix(const Conversion& conversion, bool negative, bool isZero)
{
    switch (conversion.letter) {
        case 'd':
        case 'i':
            return negative ? "-" : conversion.Has('+') ? "+" : conversion.Has(' ') ? " " : "";
        case 'x':
        case 'X':
            return conversion.Has('#') && !isZero ? std::string{'0', conversion.letter} : "";
        default:
            return "";
    }
}

static std::string PrintInteger(const Conversion& conversion, std::uint64_t value)
{
    const int unused = 64 - BitsOf(conversion.length);
    value = value << unused >> unused;
    const bool isSigned = conversion.letter == 'd' || conversion.letter == 'i';
    const bool negative = isSigned && (value >> (63 - unused) & 1) != 0;
    if (negative)
        value = (0 - value) << unused >> unused;

    std::string digits =
        value == 0 && conversion.precision == 0 ? "" : Digits(value, conversion.letter);
    const std::string prefix = Prefix(conversion, negative, value == 0);
    std::size_t fewest = conversion.precision.value_or(0);
    if (!conversion.precision && conversion.Has('0') && !conversion.Has('-'))
        fewest = conversion.width - std::min(conversion.width, prefix.size());
    if (conversion.letter == 'o' && conversion.Has('#') && !digits.starts_with('0'))
        fewest = std::max(fewest, digits.size() + 1);
    if (digits.size() < fewest)
        digits.insert(0, fewest - digits.size(), '0');
    return Padded(conversion, prefix + digits);
}

static std::string PrintPointer(const Conversion& conversion, const void* pointer)
{
    char text[2 * sizeof(pointer) + 8];
    std::snprintf(text, sizeof text, "%p", pointer);
    return Padded(conversion, text);
}

std::string ExpandPointer(std::string_view format, const void* pointer)
{
    return Expand(format, [&](const Conversion& conversion) -> std::optional<std::string> {
        static constexpr std::string_view kIntegers = "diuoxX";
        if (conversion.letter == 'p' && conversion.length.empty())
            return PrintPointer(conversion, pointer);
        if (conversion.letter == '\0' || kIntegers.find(conversion.letter) == kIntegers.npos)
            return {};
        return PrintInteger(conversion, reinterpret_cast<std::uintptr_t>(pointer));
    });
}

}  // namespace qx
