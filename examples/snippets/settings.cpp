#include <qxutility/config/ini_file.h>

#include <cstdio>

int main()
{
    // [README]
    INIFile settings("pipes.ini");
    std::puts(settings.GetPrivateProfileStringA("Units", "LENGTH", "", nullptr, 0));  // prints mm
    const double most = settings.GetPrivateProfileDouble("Limits", "Velocity", 1.0, nullptr, 0);
    std::printf("%.1f m/s\n", most);  // prints 2.5 m/s
    // [/README]
}
