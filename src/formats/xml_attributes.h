// The attributes in a start tag.
#pragma once

#include <qxutility/formats/xml_document.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace qx {

struct XmlAttribute {
    std::string_view name;   // may be empty
    std::string_view value;  // not decoded
};

// The attributes of the element that was asked last: name, '=', value in double quotes, with white
// space around each of them where one likes. They are found as far as is needed and kept, because
// applications ask one element for one attribute after the other.
class XmlAttributes {
  public:
    // Makes it those of a tag, kScanPadding bytes behind which may be read. Nothing happens when
    // they are already.
    void Use(std::string_view tag);

    // The first attribute of that name, in whatever case; null without one.
    const XmlAttribute* Find(std::string_view name);
    // The attribute at a position; null when there are fewer.
    const XmlAttribute* At(std::size_t index);

    // After null: what ended the attributes; xmlNoError where no '=' follows what could be a name.
    errorcode Error() const { return m_error; }

  private:
    bool FindNext();
    bool FindPlainNext();
    bool End(errorcode error);
    void Add(const char* name, const char* nameEnd, const char* value, const char* valueEnd);

    std::string_view m_tag;
    const char* m_position =
        nullptr;  // where the next attribute is looked for; null after the last
    std::vector<XmlAttribute> m_found;
    errorcode m_error = xmlNoError;
};

}  // namespace qx
