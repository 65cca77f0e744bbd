#include <qxutility/core/text.h>

#include <cstdio>

int main()
{
    // [README]
    char file[] = "Line 3/4: main";
    std::puts(Sanitize(file));  // prints Line_3_4__main
    char label[64] = "Pipes & valves";
    AddAnotherAmpersand(label);
    std::puts(label);  // prints Pipes && valves
    for (const std::string& word : tokenize("DN 50;DN 65", ";"))
        std::puts(word.c_str());  // prints DN 50 | DN 65
    // [/README]
}
