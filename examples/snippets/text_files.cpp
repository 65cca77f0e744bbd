#include <qxutility/formats/text_file.h>

#include <cstdio>

int main()
{
    // [README]
    TextFile file("pipes.dat");
    std::string line;
    int lines = 0;
    for (; !file.eof(); ++lines)
        file.ReadLine(line);           // however long it is
    std::printf("%d lines\n", lines);  // prints 5 lines
    // [/README]
}
