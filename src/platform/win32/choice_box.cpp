#include "platform/choice_box.h"

#include "platform/module.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace qx::platform {

namespace {

constexpr std::size_t kMostAnswers = 16;
constexpr int kQuestion = 100, kFirstAnswer = 101;  // control identifiers

// In dialog units.
constexpr short kWidth = 240, kMargin = 10, kQuestionHeight = 24, kButtonHeight = 16, kGap = 4;

struct Choice {
    const char *question, *caption;
    std::span<const std::string> answers;
};

// A dialog template in memory. The texts are set when the dialog opens: the template would have
// them in Unicode.
class Template {
  public:
    explicit Template(std::size_t answers)
    {
        const auto count = static_cast<short>(answers);
        Add(DLGTEMPLATE{DS_MODALFRAME | DS_CENTER | DS_SETFONT | DS_SETFOREGROUND | WS_POPUP |
                            WS_CAPTION | WS_SYSMENU,
                        0, static_cast<WORD>(answers + 1), 0, 0, kWidth,
                        static_cast<short>(Top(count) + kMargin - kGap)});
        AddWords({0, 0, 0, 8});  // no menu, the class of dialogs, no caption; the font's size
        for (const char c : std::string_view("MS Shell Dlg"))
            m_words.push_back(static_cast<WORD>(c));
        m_words.push_back(0);
        AddControl(0x82, SS_LEFT | SS_NOPREFIX, kQuestion, kMargin, kQuestionHeight);
        for (short i = 0; i < count; ++i)
            AddControl(0x80, WS_TABSTOP | (i == 0 ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON),
                       static_cast<WORD>(kFirstAnswer + i), Top(i), kButtonHeight);
    }

    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

  private:
    static short Top(short answer)
    {
        return static_cast<short>(2 * kMargin + kQuestionHeight + answer * (kButtonHeight + kGap));
    }

    template <typename Item>
    void Add(const Item& item)
    {
        const std::size_t end = m_words.size();
        m_words.resize(end + sizeof item / sizeof(WORD));
        std::memcpy(&m_words[end], &item, sizeof item);
    }
    void AddWords(std::initializer_list<WORD> words) { m_words.insert(m_words.end(), words); }
    void AddControl(WORD windowClass, DWORD style, WORD id, short y, short height)
    {
        m_words.resize((m_words.size() + 1) / 2 * 2);  // starts at a multiple of four bytes
        Add(DLGITEMTEMPLATE{style | WS_CHILD | WS_VISIBLE, 0, kMargin, y, kWidth - 2 * kMargin,
                            height, id});
        AddWords({0xFFFF, windowClass, 0, 0});  // no text, no data
    }

    std::vector<WORD> m_words;
};

void Open(HWND dialog, const Choice& choice)
{
    ::SetWindowTextA(dialog, choice.caption);
    ::SetDlgItemTextA(dialog, kQuestion, choice.question);
    for (std::size_t i = 0; i < choice.answers.size(); ++i)
        ::SetDlgItemTextA(dialog, kFirstAnswer + static_cast<int>(i), choice.answers[i].c_str());
}

INT_PTR CALLBACK OnMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    const int id = LOWORD(wParam);
    switch (message) {
        case WM_INITDIALOG:
            Open(dialog, *reinterpret_cast<const Choice*>(lParam));
            return TRUE;
        case WM_COMMAND:
            return (id == IDCANCEL || id >= kFirstAnswer) && ::EndDialog(dialog, id);
        default:
            return FALSE;
    }
}

}  // namespace

int ShowChoice(HWND owner, const char* question, const char* caption,
               std::span<const std::string> answers)
{
    const Choice choice{question, caption, answers.first(std::min(answers.size(), kMostAnswers))};
    const Template dialog(choice.answers.size());
    const INT_PTR id = ::DialogBoxIndirectParamA(ThisModule(), dialog.Get(), owner, OnMessage,
                                                 reinterpret_cast<LPARAM>(&choice));
    return std::max(static_cast<int>(id) - kFirstAnswer, 0);
}

}  // namespace qx::platform
