#include <qxutility/config/table_reader.h>

#include <cstdio>

int main()
{
    // [README]
    CTableReader pipes("pipes.dat", '\t', nullptr, nullptr);  // name, material, price
    char* names = nullptr;
    const int count = pipes.Query(names, 0, kQueryIgnoreCase, "name", "material", "steel", nullptr);
    std::printf("%d: %s\n", count, names);  // prints 2: P-101<tab>P-104<tab>
    delete[] names;
    // [/README]
}
