// A reader of small XML files: a tree of elements that are views into one copy of the text.
//
// It reads a narrow subset of XML: elements, attributes with double-quoted values, the entities
// &lt; &gt; &amp; &apos; &quot;, and comments without '>'. Everything else is read as well, in a
// simple-minded but fixed way:
// - A tag ends at the first '>' after its '<', wherever that stands.
// - An element is named by what stands between '<' and the first '>' or space, when that begins
// with
//   a letter or '_'; other elements are nameless. So "<b/>" is named "b/", "<b />" is named "b".
// - A tag before whose '>' stands a '/' has no content, nor has one that begins with "<!" or "</".
// - The content of any other ends at "</", its name (the first 76 characters of it) and '>'. Every
//   other tag before that is a child: also end tags that fit nothing (xmlStrayEndTag). Without such
//   an end (xmlMissingEndTag) the content is the rest of the text. "<?xml ...?>" has none.
// - A tag without '>' lies at the end of the text, with empty content.
// - A NUL byte ends the text.
//
// Nothing is ever refused: texts of any shape and size are read in linear time, without recursion.
// Errors are told by GetError.
//
// String results go to the caller's buffer of `size` bytes; a size of 0 or less writes nothing.
// No document is for use by two threads at once.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <cstddef>
#include <memory>

enum errorcode {
    xmlNoError = 0,
    xmlStrayEndTag = 1,          // an end tag where no open element has that name
    xmlMissingEndTag = 2,        // an element without its end tag
    xmlUnquotedValue = 100,      // an attribute's '=' without '"' after it
    xmlUnterminatedValue = 101,  // an attribute's value without '"' behind it
};

class XMLDocument;

namespace qx {
class XmlArena;
class XmlAttributes;
class XmlParser;
class XmlView;
}  // namespace qx

// An element of a document, which owns it: the pointer is valid until the document is loaded anew
// or destroyed, and is not to be deleted. Its children are passed through with a cursor that each
// element has of its own.
class QX_API XMLElement {
  public:
    XMLElement(const XMLElement&) = delete;
    XMLElement& operator=(const XMLElement&) = delete;
    virtual ~XMLElement();

    // The last child of that name, case-sensitive; null without one or for a null name. Names are
    // compared by their first 79 characters. The cursor moves there, or before the first child.
    XMLElement* FindElement(const char* name);
    // Moves the cursor to the first child and returns it; null without children.
    XMLElement* FirstElement();
    // Moves the cursor to the next child and returns it; null behind the last one. After that, as
    // before any other movement, the next one is the first.
    XMLElement* NextElement();

    // Cut to size - 1 characters.
    void GetElementName(char* buffer, int size) const;

    // The name of the attribute at a position from 0 on. False, with nothing written, when there
    // are fewer or what stands before it is malformed.
    //
    // Attributes stand behind the first white space of the tag. They end where no '=' follows a
    // name, or at an error.
    bool ReadAttribute(int index, char* buffer, int size) const;
    // The value of the first attribute of that name, in whatever case, with its entities decoded.
    // Without one `defaultValue` is delivered instead and false returned.
    //
    // In both forms a result longer than `size` is cut to size - 1 characters. One of exactly
    // `size` characters fills the buffer and has no terminator: pass more than any expected value.
    bool ReadAttribute(const char* name, char* buffer, int size, const char* defaultValue) const;
    // The decimal number at the start of the value's first 80 characters; 0 when there is none, the
    // nearest int when it is too large.
    bool ReadAttribute(const char* name, int& value, int defaultValue) const;

    // ReadData of the last child of that name (FindElement). Without one `defaultValue`, cut to
    // size - 1 characters, is delivered and false returned.
    bool ReadSubElement(const char* name, char* buffer, int size, const char* defaultValue);
    // The decimal number at the start of its first 19 characters. An empty child gives 0 and false.
    bool ReadSubElement(const char* name, int& value, int defaultValue);

    // The first size - 1 bytes of what stands between start and end tag, child elements and white
    // space included, with entities decoded. False when that is empty.
    //
    // An entity is known by as much of it as stands before the next ';' or the end: "&g;" and "&;"
    // are '>', "&ap;" is an apostrophe. Others are left as they are.
    bool ReadData(char* buffer, int size) const;

    // Bytes between start tag and end tag, before decoding.
    unsigned GetDataLength() const { return m_dataEnd - m_dataStart; }
    // Bytes from the start tag's '<' to the end tag's '>'.
    unsigned GetElementLength() const { return m_elementEnd - m_tagStart; }
    // The last error of the whole document: of loading it or of reading attributes since.
    errorcode GetError() const;

  private:
    friend class XMLDocument;
    friend class qx::XmlParser;
    friend class qx::XmlView;
    explicit XMLElement(XMLDocument* document) : m_document(document) {}
    void Erase();

    XMLDocument* m_document;
    unsigned m_tagStart = 0, m_elementEnd = 0;  // positions in the document's text
    unsigned m_dataStart = 0, m_dataEnd = 0;
    XMLElement* m_firstChild = nullptr;
    XMLElement* m_nextSibling = nullptr;
    XMLElement* m_cursor = nullptr;
};

// A text and the tree of its elements. The document is itself an element: the one whose children
// are those at the top, of which there may be any number.
//
// It may be loaded again and again; what it held before is then gone, also when loading fails.
class QX_API XMLDocument : public XMLElement {
  public:
    XMLDocument();
    ~XMLDocument() override;

    // Loads a file; others may read it meanwhile. False when it cannot be opened or read, or has
    // 4 GiB or more. The document's own data is then the whole text.
    bool OpenFile(const char* path);
    // Loads a copy of `length` bytes, of the text up to its NUL when the length is -1. False for a
    // null pointer. The document itself then has no data, only children.
    bool UseData(const char* data, int length);
    // Loads a resource of a module as UseData does. False, and nothing is changed, when there is
    // none.
    bool LoadResource(HINSTANCE module, const char* name, const char* type);

    // True once a text was loaded, and from then on.
    bool bIsValid() const { return m_isValid; }

  private:
    friend class XMLElement;
    friend class qx::XmlParser;
    friend class qx::XmlView;
    void Release();
    char* MakeRoom(std::size_t length);
    void Parse();

    std::unique_ptr<char[]> m_text;
    unsigned m_length = 0;
    bool m_isValid = false;
    errorcode m_error = xmlNoError;
    std::unique_ptr<qx::XmlArena> m_arena;
    std::unique_ptr<qx::XmlAttributes> m_attributes;  // of the element that was asked last
};
