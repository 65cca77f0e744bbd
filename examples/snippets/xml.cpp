#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>

#include <cstdio>

int main()
{
    // [README]
    XMLWriter writer;
    writer.BeginElement("Pipe");
    writer.AddAttribute("DN", 50);
    writer.SetData("Ring & main");
    writer.EndElement();
    writer.SaveToDisk("pipe.xml");  // <Pipe DN="50">Ring &amp; main</Pipe>

    XMLDocument document;
    document.OpenFile("pipe.xml");
    XMLElement* pipe = document.FindElement("Pipe");
    int diameter = 0;
    pipe->ReadAttribute("DN", diameter, 0);
    char name[32];
    pipe->ReadData(name, sizeof name);
    std::printf("%s, DN %d\n", name, diameter);  // prints Ring & main, DN 50
    // [/README]
    std::remove("pipe.xml");
}
