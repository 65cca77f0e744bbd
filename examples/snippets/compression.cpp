#include <qxutility/formats/compression.h>

#include <cstdio>
#include <string>

int main()
{
    // [README]
    std::string report;
    for (int pipe = 1; pipe <= 50; ++pipe)
        report += "Pipe P-" + std::to_string(pipe) + ", steel, DN 50\r\n";
    const std::string small = Compression::Compress(report);
    std::printf("%zu bytes in %zu\n", report.size(), small.size());  // prints 1241 bytes in 261

    std::string restored;  // at most a million bytes, whatever the input says
    if (Compression::Uncompress(small, restored, 1000000) == Compression::Fault::None)
        std::puts(restored == report ? "restored" : "different");  // prints restored
    // [/README]
}
