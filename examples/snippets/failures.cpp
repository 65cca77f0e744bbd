#include "program.h"

#include <qxutility/config/language.h>
#include <qxutility/config/startup.h>
#include <qxutility/config/table_reader.h>

#include <cstdio>

int main()
{
    CTableReader table("texts.dat", '\t', nullptr, nullptr);
    CLanguage language;
    language.Attach(program, &table);
    const HWND window = nullptr;
    // [README]
    // String 11 is "%s is no number." and takes the text; the box has an OK button.
    ErrorMessage(program, "Pipe Bench", window, 11, MB_OK, "twelve");

    char text[64];  // the same sentence without a box
    FormatString(program, 11, text, sizeof text, "twelve");
    std::puts(text);  // prints twelve is no number.
    // [/README]
    language.Detach(program);
}
