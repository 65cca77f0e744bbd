#include <qxutility/formats/crc.h>

#include <cstdio>

int main()
{
    // [README]
    CCrc::BuildCRCTable("pipes.dat,texts.dat", "data.crc");  // lies beside them
    if (CCrc::CheckCRCTable("data.crc"))
        std::puts("unchanged");  // prints unchanged
    // [/README]
    std::remove("data.crc");
}
