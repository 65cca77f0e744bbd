#include "formats/chain_search.h"
#include "formats/oracle/plain_compression.h"
#include "formats/suffix_search.h"
#include "support/fibonacci.h"

#include <qxutility/formats/compression.h>

#include <gmock/gmock.h>
#include <random>
#include <string>
#include <tuple>
#include <vector>

using namespace std::string_literals;
using qx::ChainSearch;
using qx::Match;
using qx::SuffixSearch;
using qx::test::Fibonacci;
using qx::test::PlainCompress;
using qx::test::PlainRestored;
using Fault = Compression::Fault;

namespace {

using Random = std::mt19937;

unsigned Below(unsigned limit, Random& random)
{
    return static_cast<unsigned>(random() % limit);
}

std::string Noise(Random& random, std::size_t size, unsigned letters)
{
    std::string text(size, '\0');
    for (char& c : text)
        c = static_cast<char>((letters < 200 ? 'a' : 0) + random() % letters);
    return text;
}

// Pieces of earlier text, and a few new letters between them.
std::string Echoes(Random& random, std::size_t size, unsigned letters, unsigned longest)
{
    std::string text = Noise(random, 8, letters);
    while (text.size() < size) {
        const std::size_t from = random() % text.size();
        text += text.substr(from, 1 + random() % longest);
        text += Noise(random, random() % 4, letters);
    }
    text.resize(size);
    return text;
}

// Short runs of short periods.
std::string Runs(Random& random, std::size_t size)
{
    std::string text;
    while (text.size() < size) {
        const std::string period = Noise(random, 1 + random() % 6, 2 + Below(2, random));
        for (std::size_t times = random() % 20; times > 0; --times)
            text += period;
    }
    text.resize(size);
    return text;
}

// Words of a small vocabulary, the first ones more often.
std::string Prose(Random& random, std::size_t size)
{
    std::vector<std::string> words;
    for (int i = 0; i < 2000; ++i)
        words.push_back(Noise(random, 1 + random() % 9, 26));
    std::string text;
    while (text.size() < size) {
        text += words[words.size() / (1 + random() % words.size()) - 1];
        text += random() % 12 ? " " : ".\r\n";
    }
    text.resize(size);
    return text;
}

// The compressed form is the described one, and comes back as the text.
void ExpectAsDescribed(const std::string& text)
{
    const std::string compressed = Compression::Compress(text);
    const std::string expected = PlainCompress(text);
    const auto where =
        std::mismatch(compressed.begin(), compressed.end(), expected.begin(), expected.end());
    ASSERT_TRUE(compressed == expected)
        << "text of " << text.size() << " bytes, difference at byte "
        << where.first - compressed.begin() << ": " << text.substr(0, 200);
    std::string restored;
    ASSERT_EQ(Compression::Uncompress(compressed, restored, text.size()), Fault::None);
    ASSERT_TRUE(restored == text) << text.substr(0, 200);
}

}  // namespace

TEST(Compress, WritesTheDescribedBytes)
{
    static const std::tuple<std::string, std::string> kCases[] = {
        {"", ""},
        {"abc", "\0abc"s},
        {"abcdabcdabcdabcd", "\0abcd\0\4\4\0\x08\x08"s},
        {"abababababab", "\0abab\0\4\4\0\4\4"s},
        {"a\0b"s, "\1a\0b"s},
        // Nothing shorter than what it replaces: a match of four from 130 bytes back is none.
        {"wxyz" + std::string(130, '-') + "wxyz",
         "\0wxyz----\0\4\4\0\x08\x08\0\x10\x10\0\x20\x20\0\x40\x40--wxyz"s},
    };
    for (const auto& [text, compressed] : kCases)
        EXPECT_EQ(Compression::Compress(text), compressed) << text;
}

TEST(Compress, EscapesTheRarestByteWhereItOccurs)
{
    std::string text;
    for (int value = 0; value < 256; ++value)
        text.append(value == 7 ? 1 : 2, static_cast<char>(value));
    EXPECT_EQ(Compression::Compress(text), "\7" + text.substr(0, 14) + "\7\0"s + text.substr(15));
}

TEST(Compress, FindsWhatTheExhaustiveSearchFindsInShortTexts)
{
    Random random(1);
    for (int i = 0; i < 40000 && !testing::Test::HasFatalFailure(); ++i) {
        const std::size_t size = random() % 300;
        switch (i % 4) {
            case 0:
                ExpectAsDescribed(Noise(random, size, 1 + Below(4, random)));
                break;
            case 1:
                ExpectAsDescribed(Echoes(random, size, 2 + Below(30, random), 40));
                break;
            case 2:
                ExpectAsDescribed(Runs(random, size));
                break;
            case 3:
                ExpectAsDescribed(Noise(random, size, 256) + Noise(random, size, 3));
                break;
        }
    }
}

TEST(Compress, FindsWhatTheExhaustiveSearchFindsInLongTexts)
{
    Random random(2);
    const std::size_t size = 20000;
    std::string mixed;
    for (const std::string& text :
         {std::string(size, 'x'), Fibonacci(size), Noise(random, size, 2), Noise(random, size, 16),
          Noise(random, 2 * size, 256), Echoes(random, size, 4, 9), Echoes(random, size, 90, 900),
          Runs(random, size), Prose(random, 8 * size)}) {
        ExpectAsDescribed(text);
        mixed += text.substr(0, size / 4);
    }
    ExpectAsDescribed(mixed + mixed);
}

// At every place, also those that a text's tokens skip.
static void ExpectSearchesToAgree(const std::string& text)
{
    const auto suffixes = SuffixSearch::Make(text);
    ChainSearch<std::uint16_t> chains(text, ~std::uint64_t{0});
    for (std::uint32_t place = 0; place + 4 <= text.size(); ++place) {
        Match byChains;
        ASSERT_TRUE(chains.Longest(place, byChains));
        if (byChains.length == 4 && byChains.distance > 127)
            byChains = {};  // no use to anyone
        const Match bySuffixes = suffixes->Longest(place);
        ASSERT_EQ(bySuffixes.length, byChains.length) << text << " at " << place;
        ASSERT_EQ(bySuffixes.distance, byChains.distance) << text << " at " << place;
    }
}

TEST(Compress, SearchesFindTheSameAtEveryPlace)
{
    Random random(4);
    for (int i = 0; i < 3000 && !testing::Test::HasFatalFailure(); ++i) {
        const std::size_t size = 1 + random() % 250;
        ExpectSearchesToAgree(i % 3 == 0   ? Runs(random, size)
                              : i % 3 == 1 ? Noise(random, size, 1 + Below(4, random))
                                           : Echoes(random, size, 2, 100));
    }
    for (int i = 0; i < 100 && !testing::Test::HasFatalFailure(); ++i)
        ExpectSearchesToAgree(Echoes(random, 4000, 2, 1500));
}

TEST(Compress, GivesUpOnChainsAfterTheAllowedSteps)
{
    const std::string text(1000, 'x');
    ChainSearch<std::uint16_t> chains(text, 100);
    Match match;
    EXPECT_TRUE(chains.Longest(20, match));
    EXPECT_FALSE(chains.Longest(400, match));
}

// From here on only the order of suffixes is used.
TEST(Compress, FindsWhatTheExhaustiveSearchFindsInLargeTexts)
{
    Random random(5);
    ExpectAsDescribed(Prose(random, 300000));
    ExpectAsDescribed(Echoes(random, 270000, 20, 5000));
}

TEST(Uncompress, ReturnsTheTextUpToItsFirstNul)
{
    static const std::tuple<std::string, std::string> kCases[] = {
        {"", ""},         {"x", ""}, {"\0abc"s, "abc"}, {"\1a\0b"s, "a"}, {"\1ab\1\1\2\0c"s, "aba"},
        {"aa\0b"s, "ab"},  // the escape byte itself
    };
    for (const auto& [compressed, text] : kCases)
        EXPECT_EQ(Compression::Uncompress(compressed), text) << testing::PrintToString(compressed);
}

TEST(Uncompress, CopiesByteByByteWithinWhatItWrites)
{
    EXPECT_EQ(Compression::Uncompress("!abc!\x07\2"s),
              "abc"
              "bcbcbcb");
    EXPECT_EQ(Compression::Uncompress("!a!\x82\x2C\1"s), std::string(301, 'a'));
    for (unsigned distance = 1; distance < 70; ++distance) {
        Random random(distance);
        const std::string start = Noise(random, 70, 26);
        for (unsigned length = 4; length < 128; ++length) {
            const std::string compressed =
                "!" + start + '!' + static_cast<char>(length) + static_cast<char>(distance) + "end";
            ASSERT_EQ(Compression::Uncompress(compressed), PlainRestored(compressed, 1000).text)
                << length << " bytes from " << distance << " back";
        }
    }
}

TEST(Uncompress, TellsTheFaultAndKeepsWhatStoodBefore)
{
    static const std::tuple<std::string, Fault, std::string> kCases[] = {
        {"!ab", Fault::None, "ab"},
        {"!a\0b"s, Fault::None, "a\0b"s},
        {"!ab!", Fault::Cut, "ab"},
        {"!ab!\x84", Fault::Cut, "ab"},
        {"!ab!\4", Fault::Cut, "ab"},
        {"!ab!\4\x81", Fault::Cut, "ab"},
        {"!ab!\4\3cd", Fault::BadDistance, "ab"},
        {"!ab!\4\x8F\xFF\xFF\xFF\x7F", Fault::BadDistance, "ab"},
        {"!!\4\1", Fault::BadDistance, ""},
        {"!ab!\4\0cd"s, Fault::BadDistance, "ab"},
        {"!ab!\x90\x80\x80\x80\x80\x01\1", Fault::NumberTooLarge, "ab"},
        {"!ab!\x90\x80\x80\x80\x01\1", Fault::NumberTooLarge, "ab"},
        {"!ab!\4\x90\x80\x80\x80\x02", Fault::NumberTooLarge, "ab"},
        {"!ab!\x80\x80\x80\x80\x80\x04\1", Fault::NumberTooLarge, "ab"},
        {"!ab!\x80\x80\x80\x80\4\1", Fault::None, "abbbbb"},  // more groups than needed
        {"!ab!\1\2cd", Fault::None, "abacd"},                 // shorter than any that is written
        {"!ab!\x8F\xFF\xFF\xFF\x7F\1", Fault::TooLong, "ab"},
        {"!ab!\x8E\xF7\xAB\xD4\x00\2"s, Fault::TooLong, "ab"},
    };
    for (const auto& [compressed, fault, text] : kCases) {
        std::string output = "before";
        EXPECT_EQ(Compression::Uncompress(compressed, output, 1000), fault)
            << testing::PrintToString(compressed);
        EXPECT_EQ(output, text) << testing::PrintToString(compressed);
        EXPECT_EQ(Compression::Uncompress(compressed), text.c_str())
            << testing::PrintToString(compressed);
    }
}

TEST(Uncompress, StopsBeforeTheTokenThatGoesBeyondTheLimit)
{
    const std::string compressed = "!abcd!\4\4efgh!\0"s;
    static const std::tuple<std::size_t, Fault, std::string> kCases[] = {
        {0, Fault::TooLong, ""},
        {3, Fault::TooLong, "abc"},
        {7, Fault::TooLong, "abcd"},
        {8, Fault::TooLong, "abcdabcd"},
        {10, Fault::TooLong, "abcdabcdef"},
        {12, Fault::TooLong, "abcdabcdefgh"},
        {13, Fault::None, "abcdabcdefgh!"},
    };
    for (const auto& [limit, fault, text] : kCases) {
        std::string output;
        EXPECT_EQ(Compression::Uncompress(compressed, output, limit), fault) << limit;
        EXPECT_EQ(output, text) << limit;
    }
}

TEST(Uncompress, RestoresIntoItsOwnInput)
{
    std::string text = "!ab!\4\2";
    EXPECT_EQ(Compression::Uncompress(text, text, 100), Fault::None);
    EXPECT_EQ(text, "ababab");
}

TEST(Uncompress, RestoresAnyBytesAsThePlainReaderDoes)
{
    Random random(3);
    for (int i = 0; i < 30000; ++i) {
        std::string bytes = Compression::Compress(Echoes(random, random() % 900, 3 + i % 80, 60));
        for (std::size_t times = random() % 4; times > 0 && !bytes.empty(); --times)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        bytes.resize(bytes.size() - (bytes.empty() ? 0 : random() % bytes.size()));
        const std::size_t limit = random() % 2 ? 5000 : random() % 900;
        const PlainRestored plain(bytes, limit);
        std::string text;
        ASSERT_EQ(Compression::Uncompress(bytes, text, limit), plain.fault)
            << testing::PrintToString(bytes) << " limit " << limit;
        ASSERT_EQ(text, plain.text) << testing::PrintToString(bytes) << " limit " << limit;
    }
}
