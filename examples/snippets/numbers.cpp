#include <qxutility/config/startup.h>
#include <qxutility/core/numbers.h>

#include <cstdio>

int main()
{
    // [README]
    char shown[40];
    RoundIt(1234.56789, shown);
    std::puts(shown);  // prints 1235

    QXUtility_SetLanguage(0x0407);  // German: the user types a decimal comma
    char typed[] = "12,5";
    double length = 0;
    if (IsNumber(typed, &length))
        std::printf("%.2f\n", length);  // prints 12.50
    // [/README]
}
