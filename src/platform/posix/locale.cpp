#include "platform/locale.h"

#include "platform/clock.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string_view>
#include <unicode/dcfmtsym.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>
#include <unicode/ucnv.h>
#include <unicode/ucurr.h>
#include <unicode/uloc.h>
#include <unicode/ures.h>

namespace qx::platform {

// A locale identifier: the language in the low 10 bits, its variety in the next 6.
static constexpr DWORD PrimaryLanguage(DWORD lcid)
{
    return lcid & 0x03FF;
}
static constexpr DWORD LanguageId(DWORD lcid)
{
    return lcid & 0xFFFF;
}

struct CodePageOf {
    DWORD language;
    int codePage;
};

// Languages that have another ANSI code page than 1252, as Windows assigns them.
static constexpr CodePageOf kPrimaryCodePages[] = {
    {0x01, 1256},  // Arabic
    {0x02, 1251},  // Bulgarian
    {0x04, 936},   // Chinese
    {0x05, 1250},  // Czech
    {0x08, 1253},  // Greek
    {0x0D, 1255},  // Hebrew
    {0x0E, 1250},  // Hungarian
    {0x11, 932},   // Japanese
    {0x12, 949},   // Korean
    {0x15, 1250},  // Polish
    {0x18, 1250},  // Romanian
    {0x19, 1251},  // Russian
    {0x1A, 1250},  // Bosnian, Croatian, Serbian in Latin letters
    {0x1B, 1250},  // Slovak
    {0x1C, 1250},  // Albanian
    {0x1E, 874},   // Thai
    {0x1F, 1254},  // Turkish
    {0x20, 1256},  // Urdu
    {0x22, 1251},  // Ukrainian
    {0x23, 1251},  // Belarusian
    {0x24, 1250},  // Slovenian
    {0x25, 1257},  // Estonian
    {0x26, 1257},  // Latvian
    {0x27, 1257},  // Lithuanian
    {0x28, 1251},  // Tajik
    {0x29, 1256},  // Persian
    {0x2A, 1258},  // Vietnamese
    {0x2C, 1254},  // Azerbaijani in Latin letters
    {0x2F, 1251},  // Macedonian
    {0x3F, 1251},  // Kazakh
    {0x40, 1251},  // Kyrgyz
    {0x42, 1250},  // Turkmen
    {0x43, 1254},  // Uzbek in Latin letters
    {0x44, 1251},  // Tatar
    {0x50, 1251},  // Mongolian in Cyrillic letters
    {0x59, 1256},  // Sindhi
    {0x6D, 1251},  // Bashkir
    {0x80, 1256},  // Uyghur
    {0x85, 1251},  // Yakut
    {0x8C, 1256},  // Dari
    {0x92, 1256},  // Central Kurdish
};

// Where the variety of a language has another code page than the language.
static constexpr CodePageOf kVarietyCodePages[] = {
    {0x0404, 950},   // Chinese in Taiwan
    {0x0C04, 950},   // in Hong Kong
    {0x1404, 950},   // in Macao
    {0x7C04, 950},   // in traditional characters
    {0x0C1A, 1251},  // Serbian in Cyrillic letters: Serbia and Montenegro as they were
    {0x1C1A, 1251},  // in Bosnia
    {0x281A, 1251},  // in Serbia
    {0x301A, 1251},  // in Montenegro
    {0x6C1A, 1251},  // anywhere
    {0x7C1A, 1251},  // Serbian of no stated script
    {0x201A, 1251},  // Bosnian in Cyrillic letters
    {0x641A, 1251},  // anywhere
    {0x082C, 1251},  // Azerbaijani in Cyrillic letters
    {0x742C, 1251},  // anywhere
    {0x0843, 1251},  // Uzbek in Cyrillic letters
    {0x7843, 1251},  // anywhere
    {0x0846, 1256},  // Punjabi in Pakistan
    {0x7C46, 1256},  // in Arabic letters
};

template <std::size_t Size>
static std::optional<int> FindCodePage(const CodePageOf (&table)[Size], DWORD language)
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [=](const auto& row) { return row.language == language; });
    return found == std::end(table) ? std::nullopt : std::optional(found->codePage);
}

static int AnsiCodePage(DWORD lcid)
{
    constexpr int kWesternEuropean = 1252;
    if (const auto codePage = FindCodePage(kVarietyCodePages, LanguageId(lcid)))
        return *codePage;
    return FindCodePage(kPrimaryCodePages, PrimaryLanguage(lcid)).value_or(kWesternEuropean);
}

struct Replacement {
    const char16_t *from, *to;
};

// No code page has the narrow no-break space, the typographic minus or the wide yen sign. Marks of
// the writing direction are left out, as they are in Windows' own texts.
static constexpr Replacement kReplacements[] = {
    {u"\u202F", u"\u00A0"}, {u"\u2212", u"-"}, {u"\uFFE5", u"\u00A5"},
    {u"\u200E", u""},       {u"\u200F", u""},  {u"\u061C", u""},
};

static std::string ToCodePage(icu::UnicodeString text, int codePage)
{
    for (const auto& [from, to] : kReplacements)
        text.findAndReplace(from, to);
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUConverterPointer converter(
        ::ucnv_open(("windows-" + std::to_string(codePage)).c_str(), &status));
    if (U_FAILURE(status))
        return {};
    ::ucnv_setFallback(converter.getAlias(), true);
    ::ucnv_setSubstChars(converter.getAlias(), "?", 1, &status);
    const int capacity =
        UCNV_GET_MAX_BYTES_FOR_STRING(text.length(), ucnv_getMaxCharSize(converter.getAlias()));
    std::string bytes(static_cast<std::size_t>(capacity), '\0');
    const int length = ::ucnv_fromUChars(converter.getAlias(), bytes.data(), capacity,
                                         text.getBuffer(), text.length(), &status);
    bytes.resize(U_SUCCESS(status) ? static_cast<std::size_t>(length) : 0);
    return bytes;
}

static bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

// No-break spaces separate thousands only; everywhere else Windows has a plain blank.
static icu::UnicodeString WithPlainBlanks(icu::UnicodeString text)
{
    for (int i = 0; i < text.length(); ++i) {
        const bool isNoBreakSpace = text[i] == u'\u00A0' || text[i] == u'\u202F';
        // Beyond its ends a text has the character U+FFFF.
        if (isNoBreakSpace && !(IsDigit(text.charAt(i - 1)) && IsDigit(text.charAt(i + 1))))
            text.setCharAt(i, u' ');
    }
    return text;
}

// ICU's locale of an identifier; nothing when ICU has none or no data for it. An unknown variety of
// a known language leads to the plain language and not back, so it counts as unknown.
static std::optional<icu::Locale> IcuLocale(DWORD lcid)
{
    UErrorCode status = U_ZERO_ERROR;
    char name[ULOC_FULLNAME_CAPACITY] = "";
    ::uloc_getLocaleForLCID(lcid, name, sizeof name, &status);
    if (PrimaryLanguage(lcid) == 0 || U_FAILURE(status) || ::uloc_getLCID(name) != lcid)
        return std::nullopt;
    const icu::LocalUResourceBundlePointer data(::ures_open(nullptr, name, &status));
    if (U_FAILURE(status) || status == U_USING_DEFAULT_WARNING)
        return std::nullopt;
    // A language alone stands for its main country, which has the currency.
    char full[ULOC_FULLNAME_CAPACITY] = "";
    ::uloc_addLikelySubtags(name, full, sizeof full, &status);
    icu::Locale locale(full);
    locale.setKeywordValue("numbers", "latn", status);
    return U_SUCCESS(status) ? std::optional(locale) : std::nullopt;
}

static icu::CurrencyUnit CurrencyOf(const icu::Locale& locale, UErrorCode& status)
{
    char16_t code[4] = u"XXX";
    UErrorCode ignored = U_ZERO_ERROR;
    ::ucurr_forLocale(locale.getName(), code, 4, &ignored);
    return icu::CurrencyUnit(code, status);
}

// As Windows writes money: thousands always separated, halves away from zero, no sign on a zero.
static icu::number::LocalizedNumberFormatter CurrencyFormatter(const icu::Locale& locale,
                                                               UErrorCode& status)
{
    return icu::number::NumberFormatter::withLocale(locale)
        .unit(CurrencyOf(locale, status))
        .grouping(UNUM_GROUPING_ON_ALIGNED)
        .roundingMode(UNUM_ROUND_HALFUP)
        .sign(UNUM_SIGN_ACCOUNTING_NEGATIVE);
}

struct LocaleData {
    icu::Locale locale;
    int codePage;
    std::string decimal, thousands;
    icu::number::LocalizedNumberFormatter currency;
};

static std::optional<LocaleData> Load(DWORD lcid)
{
    const auto locale = IcuLocale(lcid);
    if (!locale)
        return std::nullopt;
    using Symbols = icu::DecimalFormatSymbols;
    UErrorCode status = U_ZERO_ERROR;
    const Symbols symbols(*locale, status);
    const int codePage = AnsiCodePage(lcid);
    const auto symbol = [&](Symbols::ENumberFormatSymbol which) {
        return ToCodePage(symbols.getConstSymbol(which), codePage);
    };
    LocaleData data{*locale, codePage, symbol(Symbols::kDecimalSeparatorSymbol),
                    symbol(Symbols::kGroupingSeparatorSymbol), CurrencyFormatter(*locale, status)};
    return U_SUCCESS(status) ? std::optional(std::move(data)) : std::nullopt;
}

// The data of a locale, loaded once and kept; null for an unknown one.
static const LocaleData* Find(DWORD lcid)
{
    static std::mutex mutex;
    static std::map<DWORD, LocaleData> known;
    const std::lock_guard lock(mutex);
    auto found = known.find(lcid);
    if (found == known.end()) {
        auto data = Load(lcid);
        if (!data)
            return nullptr;
        found = known.emplace(lcid, std::move(*data)).first;
    }
    return &found->second;
}

bool IsInstalledLocale(DWORD lcid)
{
    return Find(lcid) != nullptr;
}

std::string DecimalSeparator(DWORD lcid)
{
    const LocaleData* data = Find(lcid);
    return data ? data->decimal : "";
}

std::string ThousandsSeparator(DWORD lcid)
{
    const LocaleData* data = Find(lcid);
    return data ? data->thousands : "";
}

static bool IsPlainNumber(std::string_view text)
{
    if (text.starts_with('-'))
        text.remove_prefix(1);
    return text.find_first_not_of("0123456789.") == std::string_view::npos &&
           std::count(text.begin(), text.end(), '.') <= 1;
}

std::string FormatCurrency(DWORD lcid, const char* value)
{
    const LocaleData* data = Find(lcid);
    if (!data || !value || !IsPlainNumber(value))
        return {};
    const bool hasDigits = std::strpbrk(value, "0123456789") != nullptr;
    UErrorCode status = U_ZERO_ERROR;
    const auto text =
        data->currency.formatDecimal(hasDigits ? value : "0", status).toString(status);
    return U_SUCCESS(status) ? ToCodePage(WithPlainBlanks(text), data->codePage) : "";
}

// The date as milliseconds since 1970 in UTC, at noon.
static UDate Today()
{
    const LocalTime now = ToLocalTime(SecondsSince1970());
    const std::chrono::sys_days day(std::chrono::year(now.year) / static_cast<unsigned>(now.month) /
                                    static_cast<unsigned>(now.day));
    return static_cast<UDate>(
        std::chrono::milliseconds(day.time_since_epoch() + std::chrono::hours(12)).count());
}

// The locale's pattern; years in the short form have four digits, as on Windows.
static icu::UnicodeString DatePattern(const icu::SimpleDateFormat& format)
{
    icu::UnicodeString pattern;
    format.toPattern(pattern);
    if (pattern.indexOf(u"yyy") < 0)
        pattern.findAndReplace(u"yy", u"yyyy");
    return pattern;
}

std::string FormatToday(DWORD lcid, DWORD flags)
{
    const LocaleData* data = Find(lcid);
    if (!data || (flags != 0 && flags != DATE_SHORTDATE && flags != DATE_LONGDATE))
        return {};
    const auto style = flags == DATE_LONGDATE ? icu::DateFormat::kFull : icu::DateFormat::kShort;
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateInstance(style, data->locale));
    auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get());
    if (!simple)
        return {};
    simple->applyPattern(DatePattern(*simple));
    simple->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    icu::UnicodeString text;
    simple->format(Today(), text);
    return ToCodePage(WithPlainBlanks(text), data->codePage);
}

}  // namespace qx::platform
