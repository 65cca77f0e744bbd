#include <qxutility/formats/log_file.h>

#include <cstdio>

int main()
{
    // [README]
    LogFile log("solver.log");  // begins an entry; those older than ten days go
    log << "pipes: " << 12 << ", flow: " << 7.5 << "\n";
    // [/README]
    log.close();
    std::remove("solver.log");
}
