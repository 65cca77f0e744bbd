// The attributes in a start tag.
#pragma once

#include <qxutility/formats/xml_document.h>

#include <string_view>

namespace qx {

// Steps through the attributes of a tag: name, '=', value in double quotes, with white space around
// each of them where one likes.
class XmlAttributes {
  public:
    // `tag` is the text of the tag, kScanPadding bytes behind which may be read.
    explicit XmlAttributes(std::string_view tag);

    // Goes to the next attribute, the first one to begin with. False where no '=' follows what
    // could be its name, and at an error.
    bool Next();
    std::string_view Name() const { return m_name; }    // may be empty
    std::string_view Value() const { return m_value; }  // not decoded
    // What ended the attributes; xmlNoError for their end.
    errorcode Error() const { return m_error; }

  private:
    bool Fail(errorcode error)
    {
        m_error = error;
        return false;
    }

    const char* m_position;
    const char* m_end;
    std::string_view m_name, m_value;
    errorcode m_error = xmlNoError;
};

}  // namespace qx
