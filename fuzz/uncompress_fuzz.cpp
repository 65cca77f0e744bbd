// The compressor and its counterpart. The first byte of an input is for options; the rest is a
// compressed text, or a text to compress.
#include "formats/chain_search.h"
#include "formats/oracle/plain_compression.h"
#include "formats/suffix_search.h"
#include "fuzz.h"

#include <qxutility/formats/compression.h>

#include <string>

using qx::fuzz::Require;

namespace {

void Uncompress(const std::string& bytes, std::size_t limit)
{
    const qx::test::PlainRestored plain(bytes, limit);
    std::string text = "left over";
    Require(Compression::Uncompress(bytes, text, limit) == plain.fault,
            "the fault is the first one");
    Require(text == plain.text, "the text is what stands before the fault");
    if (plain.fault != Compression::Fault::TooLong)
        Require(Compression::Uncompress(bytes) == text.c_str(), "the text ends at its first NUL");
}

void Compress(const std::string& text)
{
    const std::string compressed = Compression::Compress(text);
    Require(compressed == qx::test::PlainCompress(text),
            "the compressed form is the described one");
    std::string restored;
    Require(
        Compression::Uncompress(compressed, restored, text.size()) == Compression::Fault::None &&
            restored == text,
        "what was compressed comes back");
}

void Search(const std::string& text)
{
    const auto suffixes = qx::SuffixSearch::Make(text);
    qx::ChainSearch<std::uint32_t> chains(text, ~std::uint64_t{0});
    for (std::uint32_t place = 0; place + qx::kShortestMatch <= text.size(); ++place) {
        qx::Match one;
        chains.Longest(place, one);
        if (one.length == qx::kShortestMatch && one.distance > qx::kFarthestFour)
            one = {};  // no use to anyone
        const qx::Match other = suffixes->Longest(place);
        Require(one.length == other.length && one.distance == other.distance,
                "both searches find the same");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    if (data[0] & 1)
        Uncompress(bytes, data[0] & 2 ? data[0] : data[0] < 240 ? 1000 : 65536);
    else if (data[0] & 2)
        Search(bytes);
    else
        Compress(bytes);
    return 0;
}
