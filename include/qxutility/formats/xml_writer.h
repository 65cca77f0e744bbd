// Writes XML texts in the one layout that the family's files have: two spaces of indentation for
// each level, lines that end with CR LF, an element without children on one line. XMLDocument reads
// what comes out.
//
//     <Toolbar ID="3">
//       <Button>a&lt;b</Button>
//     </Toolbar>
#pragma once

#include <qxutility/export.h>

#include <memory>

// Begins elements, gives them attributes and data, and ends them. One writer makes one text. Null
// pointers count as empty texts. A copy goes on by itself.
class QX_API XMLWriter {
  public:
    // The text has room for five times `growth` bytes at first, and for `growth` more whenever that
    // is not enough.
    explicit XMLWriter(unsigned growth = 1024);
    XMLWriter(const XMLWriter& other);
    XMLWriter& operator=(const XMLWriter& other);
    ~XMLWriter();

    // Begins a child of the element begun last that has not ended; an element at the top when there
    // is none. The name is written as it is given.
    void BeginElement(const char* name);

    // These do nothing when no element is open, and nothing that shows when the element has a child
    // already: its start tag is written by then. Values and data are escaped, attribute names are
    // not. SetData replaces the data set before. The data of an element with children stands before
    // the first of them.
    void AddAttribute(const char* name, const char* value);
    void AddAttribute(const char* name, int value);
    void SetData(const char* text);
    void SetData(int value);

    // Ends the element begun last; without one nothing happens. Elements that were never ended are
    // not in the text.
    void EndElement();

    // Appends a text as it is.
    void StrCat(const char* text);

    // The length of the text so far.
    unsigned StrLen() const;
    // Copies at most `size` bytes of the text. A longer text is cut to size - 1 characters; one of
    // exactly `size` characters fills the buffer and has no terminator. Size 0 writes nothing.
    void StrCpy(char* destination, unsigned size) const;

    // Writes the text to a file. A file that was there is replaced when all is on the disk; until
    // then, and when anything fails, it stays as it is. False when it failed, and for an empty
    // text, which leaves an empty file.
    bool SaveToDisk(const char* path) const;

  private:
    struct State;
    std::unique_ptr<State> m_state;
};
