// Asks the library for a text in German, which it finds only with its language table beside it.
#include <qxutility/qxutility.h>

#include <iostream>
#include <string>

int main()
{
    char text[255];
    QXUtility_SetLanguage(0x0407);
    const std::string cancel = FormatString(nullptr, 10, text, sizeof text, "");
    std::cout << cancel << '\n';
    return cancel == "Abbrechen" ? 0 : 1;
}
