#include "config/label.h"

#include <qxutility/config/language.h>

namespace qx {

namespace {

constexpr std::string_view kDots = "...";
constexpr int kMenuText = 270;  // longest texts, terminator included
constexpr int kControlText = 255;

// A wording in the language, or itself; as much as fits `size`.
std::string Translate(const CLanguage& language, std::string wording, int size, DWORD lcid)
{
    std::string translation(static_cast<std::size_t>(size), '\0');
    language.Text(wording.data(), translation.data(), size, lcid);
    return translation.c_str();
}

}  // namespace

Label SplitMenuLabel(std::string_view text)
{
    const std::size_t tab = text.find('\t');
    Label label = SplitControlLabel(text.substr(0, tab));
    if (tab != text.npos)
        label.accelerator = text.substr(tab);
    return label;
}

Label SplitControlLabel(std::string_view text)
{
    Label label;
    label.dots = text.ends_with(kDots);
    label.wording = text.substr(0, text.size() - (label.dots ? kDots.size() : 0));
    if (const std::size_t ampersand = label.wording.find('&'); ampersand != std::string::npos)
        label.wording.erase(ampersand, 1);
    return label;
}

std::string JoinLabel(std::string_view wording, bool dots, std::string_view accelerator)
{
    return std::string(wording).append(dots ? kDots : "").append(accelerator);
}

std::string MenuLevel::Translate(std::string_view text)
{
    const Label label = SplitMenuLabel(text);
    m_dots |= label.dots;
    return JoinLabel(qx::Translate(m_language, label.wording, kMenuText, m_lcid), m_dots,
                     label.accelerator);
}

std::string TranslateControl(const CLanguage& language, std::string_view text)
{
    const Label label = SplitControlLabel(text);
    return JoinLabel(Translate(language, label.wording, kControlText, 0), label.dots, {});
}

std::string TranslateCaption(const CLanguage& language, std::string_view text)
{
    return Translate(language, std::string(text), kControlText, 0);
}

bool ShowsLabel(std::string_view windowClass)
{
    return windowClass != "Edit" && windowClass != "ComboBox" && windowClass != "ListBox";
}

}  // namespace qx
