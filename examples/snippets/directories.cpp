#include <qxutility/env/directories.h>

#include <cstdio>

int main()
{
    // [README]
    char folder[MAX_PATH];
    GetDirectory(DIR_APPDATA, folder, 0);  // where this user's settings are
    char report[MAX_PATH] = "results.txt";
    std::puts(GetDataFile(report, "csv"));  // prints results.csv
    // [/README]
}
