// The buttons of the start page.
#pragma once

#include "ids.h"

#include <qxutility/config/language.h>

#include <array>
#include <string>

namespace pipebench {

struct StartButton {
    int command;
    int icon;  // of the program's resources
    const char* wording;
};
inline constexpr std::array<StartButton, 5> kStartButtons = {{
    {IDM_NEW, IDI_NEW, "Begin a new line"},
    {IDM_OPEN, IDI_OPEN, "Open a line"},
    {IDM_SAMPLE, IDI_SAMPLE, "Show the sample line"},
    {IDM_OPTIONS, IDI_OPTIONS, "Change the options"},
    {IDM_HELP, IDI_HELP, "Read the help"},
}};

// The description of the panel that the library's Layout shows: the buttons one below the other, in
// the user's language, for a screen of so many dots per inch.
std::string StartPageXml(const CLanguage& language, int dotsPerInch);

}  // namespace pipebench
