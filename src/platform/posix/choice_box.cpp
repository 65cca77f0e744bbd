#include "platform/choice_box.h"

#include "platform/message_box.h"

namespace qx::platform {

int ShowChoice(HWND owner, const char* question, const char* caption,
               std::span<const std::string> answers)
{
    for (std::size_t i = 1; i < answers.size(); ++i) {
        const std::string text = std::string(question) + "\n\n" + answers[i] + "?";
        if (ShowMessageBox(owner, text.c_str(), caption, MB_YESNO | MB_ICONQUESTION) == IDYES)
            return static_cast<int>(i);
    }
    return 0;
}

}  // namespace qx::platform
