#include "core/texts.h"

#include <qxutility/config/startup.h>

#include <array>
#include <charconv>

namespace pipebench {

static std::string Localised(const CLanguage& language, std::string english)
{
    language.Number(english.data());
    return english;
}

static std::string FixedText(double value, int decimals)
{
    std::array<char, 400> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, decimals);
    return {buffer.data(), result.ptr};
}

std::string NumberText(const CLanguage& language, double value, int decimals)
{
    return Localised(language, FixedText(value, decimals));
}

std::string PlainNumberText(double value)
{
    std::array<char, 400> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

std::string ShortNumberText(const CLanguage& language, double value)
{
    return Localised(language, PlainNumberText(value));
}

std::string ValueText(const CLanguage& language, Quantity quantity, double metric, DT_UNITS units,
                      int decimals)
{
    return NumberText(language, ToUser(quantity, metric, units), decimals);
}

std::string DiameterText(const CLanguage& language, double metric, DT_UNITS units, int decimals)
{
    return ValueText(language, Quantity::Size, metric, units, units == DT_METRIC ? 0 : decimals);
}

std::string WithUnit(const CLanguage& language, const char* wording, Quantity quantity,
                     DT_UNITS units)
{
    return Wording(language, wording) + " (" + UnitName(quantity, units) + ")";
}

std::string MoneyText(const CLanguage& language, double value, bool keepDecimals)
{
    std::array<char, 128> buffer{};
    return language.Money(FixedText(value, 2).c_str(), buffer.data(), buffer.size(), keepDecimals);
}

std::string DateText(const CLanguage& language, DWORD flags)
{
    std::array<char, 128> buffer{};
    return language.Date(buffer.data(), buffer.size(), flags);
}

std::string Wording(const CLanguage& language, const std::string& english)
{
    std::string translation;
    language.Text(english, translation, 0);
    return translation;
}

std::string Sentence(HINSTANCE module, int id, const std::string& argument)
{
    std::array<char, 512> buffer{};
    return FormatString(module, id, buffer.data(), buffer.size(), argument.c_str());
}

std::string Trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace pipebench
