// Pages of compiled help, by type.
#include <qxutility/config/help.h>
#include <qxutility/config/language.h>

void OnHelp(HWND window, CLanguage& language)
{
    // [README]
    HTML_HELP help;
    help.SetWindow(window);
    const LocalizedHelpFileFinder inTheUsersLanguage{LocalizedFilenameMaker(language)};
    help.AddType("Dialog", "Manual.chm", &inTheUsersLanguage, "small");  // or Manual_Deutsch.chm
    help.Open("Dialog", 1205);  // the page of a dialog; a box tells the user when that fails
    // [/README]
}
