#include "program.h"

#include <qxutility/ui/warning_list.h>

#include <cstdio>

int main()
{
    // [README]
    QXWarningList warnings(program, 0, 0, nullptr, nullptr);
    warnings.add("Pipe %s is too long", "P1");
    warnings.add("Pump %s runs dry", "U3");
    for (const std::string& warning : warnings.list())
        std::puts(warning.c_str());  // prints Pipe P1 is too long | Pump U3 runs dry
    // [/README]
}
