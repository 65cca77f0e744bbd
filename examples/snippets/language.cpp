#include "program.h"

#include <qxutility/config/language.h>
#include <qxutility/config/startup.h>
#include <qxutility/config/table_reader.h>

#include <cstdio>

int main()
{
    // [README]
    CTableReader table("texts.dat", '\t', nullptr, nullptr);  // columns IDS, 09-01, 07-01
    CLanguage language;
    language.Attach(program, &table);  // `program`: the module whose texts these are
    language.SetLanguage(0x0407);
    std::puts(language.String(program, 21).c_str());  // prints Rohre: %s

    std::string text;
    language.Text("Length (m):", text, 0);  // the German of an English wording
    std::puts(text.c_str());                // prints Laenge (m):

    char number[16] = "1.5 m";
    std::puts(language.Number(number));  // prints 1,5 m
    // [/README]
    language.Detach(program);
}
