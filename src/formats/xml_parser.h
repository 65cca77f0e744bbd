// Makes the tree of elements of a text.
#pragma once

class XMLDocument;

namespace qx {

// Adds the elements of a document's text to its children. Takes linear time and, beside the
// elements, no memory.
void ParseXml(XMLDocument& document);

}  // namespace qx
