// XML documents: everything that applications can ask is what it always was. The first byte of an
// input is the size of the buffers that results go to, the rest is the text.
#include "formats/oracle/same_xml.h"
#include "fuzz.h"

#include <string_view>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const qx::test::XmlComparison comparison(text, std::size_t{1} + data[0]);
    qx::fuzz::Require(comparison.Difference().empty(), comparison.Difference().c_str());
    return 0;
}
