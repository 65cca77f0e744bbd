#include "config/plain_table.h"
#include "doubles/resources_double.h"
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"

#include <qxutility/config/table_reader.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace std::string_literals;
using qx::test::Criteria;
using qx::test::GuardedBuffer;
using qx::test::PlainTable;
using qx::test::TemporaryFolder;

namespace {

const HINSTANCE kModule = reinterpret_cast<HINSTANCE>(0x10);

CTableReader FromFile(const std::string& bytes, char delimiter = '\t')
{
    const TemporaryFolder folder;
    return CTableReader(folder.Write("table.dat", bytes).c_str(), delimiter, nullptr, nullptr);
}

CTableReader FromResource(const std::string& bytes)
{
    qx::test::ResourcesDouble resources;
    resources.bytes[{kModule, "TABLE", "TEXT"}] = bytes;
    return CTableReader("TABLE", '\t', kModule, "TEXT");
}

// An allocated text, freed.
std::string Take(char* text)
{
    const std::unique_ptr<char[]> owner(text);
    return text;
}

std::string Header(const CTableReader& table)
{
    char* header;
    table.GetHeader(header);
    return Take(header);
}

// The table as text: "header|row|row", cells separated by commas, a missing one shown as "-".
std::string Shown(const CTableReader& table)
{
    char* header;
    const int columns = table.GetHeader(header);
    std::string text = Take(header);
    std::replace(text.begin(), text.end(), '\t', ',');
    char cell[5000];
    // A row beyond the last has no cell at all; one in the table has at least its first.
    for (int row = 0; table.Query(cell, sizeof cell, row, 0); ++row) {
        text += "|";
        for (int column = 0; column < columns; ++column)
            text += (table.Query(cell, sizeof cell, row, column) ? cell : "-"s) + ",";
    }
    return text;
}

struct Found {
    int count;
    std::string text;
    bool operator==(const Found&) const = default;
};
void PrintTo(const Found& found, std::ostream* out)
{
    *out << found.count << " \"" << found.text << '"';
}

// A query with up to two criteria.
Found Ask(const CTableReader& table, int maxResults, DWORD flags, const char* returnColumn,
          const char* column1 = nullptr, std::string value1 = "", const char* column2 = nullptr,
          std::string value2 = "")
{
    char* result;
    const int count = table.Query(result, maxResults, flags, returnColumn, column1, value1.data(),
                                  column2, value2.data(), static_cast<const char*>(nullptr));
    return {count, Take(result)};
}

}  // namespace

TEST(TableReader, ReadsFiles)
{
    const struct {
        std::string bytes, shown;
    } cases[] = {
        {"a\tb\r\n1\t2\r\n3\t4", "a,b,|1,2,|3,4,"},
        {"a\tb\r\n1\t2\r\n", "a,b,|1,2,|,-,"},  // not yet at the end behind the last CR
        {"a\tb\r1\t2\r", "a,b,|1,2,"},
        {"a\tb\r", "a,b,"},
        {"a\tb", "a,b,"},
        {"\r\n\r\nxy\r\na\tb\r\n1\t2", "a,b,|1,2,"},  // short lines before the header
        {"a\tb\r\n1\r\n1\t2\t3\r\n\r\n\t9", "a,b,|1,-,|1,2,|,-,|,9,"},
        {"\"a\"\t'b'\r\n\"1\"\t'2\r\n\t\"x\x01\r\n", "a,b,|1,22,|,x,|,-,"},
        {"a\tb\r\n1\n2\t3", "a,b,|1\n2,3,"},
        {"a\tb\r\n12\0\t34\r\n5\t6"s, "a,b,|12,-,|5,6,"},
        {"\t\t\t\r\n1\t2", ",,,,|1,2,-,-,"},
    };
    for (const auto& each : cases) {
        const CTableReader table = FromFile(each.bytes);
        EXPECT_TRUE(table.Valid()) << each.bytes;
        EXPECT_EQ(each.shown, Shown(table)) << each.bytes;
    }
}

TEST(TableReader, ReadsResources)
{
    const struct {
        std::string bytes, shown;
    } cases[] = {
        {"a\tb\r\n1\t2\r\n3\t4\r\n", "a,b,|1,2,|3,4,"},
        {"a\tb\n1\t2\n3\t4", "a,b,|1,2,"},          // the last line has no line feed
        {"a\tb\n12\nab\nx\n", "a,b,|12,-,|ab,-,"},  // the last line is too short
        {"a\tb\n1\t2\n\0\n3\t4\n"s, "a,b,|1,2,"},
        {"a\tb\n1\0\t2\n3\t4\n"s, "a,b,|1,-,|3,4,"},
        {"a\tb", "a,b,"},
        {"a\tb\r\nx\t\r\ny\tz\r\n", "a,b,|x,\r,|y,z,"},  // a text of one character is kept
    };
    for (const auto& each : cases) {
        const CTableReader table = FromResource(each.bytes);
        EXPECT_TRUE(table.Valid()) << each.bytes;
        EXPECT_EQ(each.shown, Shown(table)) << each.bytes;
    }
}

TEST(TableReader, IsNotValidWithoutAHeader)
{
    const std::vector<CTableReader> tables = {
        FromFile(""),
        FromFile("ab\r\nx\r\n\r\n"),
        FromFile("\0\0\0\0"s),
        FromResource(""),
        FromResource("ab\n\n"),
        CTableReader("/no/such/folder/table.dat", '\t', nullptr, nullptr),
        CTableReader(nullptr, '\t', nullptr, nullptr),
        CTableReader("MISSING", '\t', kModule, "TEXT"),
    };
    for (std::size_t i = 0; i < tables.size(); ++i) {
        char cell[9];
        EXPECT_FALSE(tables[i].Valid()) << i;
        EXPECT_EQ("", Header(tables[i])) << i;
        EXPECT_EQ((Found{0, ""}), Ask(tables[i], 0, 0, "a")) << i;
        EXPECT_EQ((Found{0, ""}), Ask(tables[i], 1, kQueryUnique, "a", "b", "c")) << i;
        EXPECT_FALSE(tables[i].Query(cell, sizeof cell, 0, 0)) << i;
    }
}

TEST(TableReader, CutsLinesAtTheirBuffer)
{
    const std::string many(4094, 'x');
    for (const std::size_t more : {0U, 1U, 2U, 5000U, 10U << 20}) {
        const std::string line = "y" + many + std::string(more, 'z');
        const std::string shown = "abc,|y" + many + ",|end,";
        EXPECT_EQ(shown, Shown(FromFile("abc\r\n" + line + "\r\nend"))) << more;
        EXPECT_EQ(shown, Shown(FromResource("abc\n" + line + "\nend\n"))) << more;
    }
    EXPECT_EQ(std::string(4095, 'h') + ",|1,",
              Shown(FromFile(std::string(9999, 'h') + "\tb\r\n1\t2")));
}

TEST(TableReader, HoldsAMillionRows)
{
    std::string bytes = "number\tparity\r\n";
    for (int i = 0; i < 1000000; ++i)
        bytes += std::to_string(i) + (i % 2 ? "\todd\r\n" : "\teven\r\n");
    const CTableReader table = FromFile(bytes);
    EXPECT_EQ((Found{1, "odd"}), Ask(table, 1, 0, "parity", "number", "999999"));
    EXPECT_EQ((Found{2, "even\todd\t"}), Ask(table, 0, kQueryUnique, "parity"));
    EXPECT_EQ(500000, Ask(table, 0, kQueryUnique, "number", "parity", "odd").count);
    EXPECT_EQ((Found{0, ""}), Ask(table, 0, 0, "number", "parity", "none"));
}

TEST(TableReader, RemovesJunk)
{
    const CTableReader table = FromFile("a;b", ';');
    const struct {
        std::string text, cleaned;
    } cases[] = {
        {"'x'", "x"},       {"\"abc\"", "abc"},   {"\"abc", "abcc"},
        {"\"\"'a", "aaaa"}, {"abc'\"", "abc"},    {"'", "'"},
        {"", ""},           {";", ";"},           {";a;", "a"},
        {"a\tb", "a\tb"},   {"\t a \r\n", " a "}, {"\xB4x\xB4", "x"},
        {"\"\"", ""},       {"';\"\x01", ""},     {"\xE9t\xE9", "\xE9t\xE9"},
        {"'\x7F'", "\x7F"},
    };
    for (const auto& each : cases) {
        GuardedBuffer text(each.text.size() + 1);
        text = each.text.c_str();
        EXPECT_EQ(text.data(), table.RemoveJunk(text));
        EXPECT_EQ(each.cleaned, text.data()) << each.text;
    }
    EXPECT_EQ(nullptr, table.RemoveJunk(nullptr));
}

TEST(TableReader, LeavesCleanTextsUnwritten)
{
    const CTableReader table = FromFile("key\tvalue\r\nplain\tfound");
    char* result;
    EXPECT_EQ(1, table.Query(result, 0, 0, "value", "key", "plain", nullptr));
    EXPECT_EQ("found\t", Take(result));
}

TEST(TableReader, AcceptsNullNamesAndValues)
{
    const CTableReader table = FromFile("a\tb\r\n1\t2\r\n\t3");
    char* result;
    const char* const none = nullptr;
    EXPECT_EQ(1, table.Query(result, 0, 0, none, none));
    EXPECT_EQ("1\t", Take(result));
    EXPECT_EQ(0, table.Query(result, -1, 0, "b", "a", none, none));
    EXPECT_EQ("", Take(result));
}

TEST(TableReader, FindsValuesWithTabsAmongUniqueOnes)
{
    const CTableReader table =
        FromFile("key;value\r\n1;a\tb\r\n2;b\r\n3;a\r\n4;b\ta\r\n5;a\tb", ';');
    EXPECT_EQ((Found{2, "a\tb\tb\ta\t"}), Ask(table, 0, kQueryUnique, "value"));
    const CTableReader other = FromFile("key;value\r\n1;a\r\n2;b\r\n3;a\tb\r\n4;b\tc\r\n5;c", ';');
    EXPECT_EQ((Found{3, "a\tb\tb\tc\t"}), Ask(other, 0, kQueryUnique, "value"));
}

TEST(TableReader, CopiesCellsThatFit)
{
    const CTableReader table = FromFile("a\tb\r\nhello\tx\r\n1");
    const struct {
        int size, row, column;
        bool found;
    } cases[] = {
        {6, 0, 0, true},  {5, 0, 0, false}, {0, 0, 0, false},  {-1, 0, 0, false}, {9, 1, 1, false},
        {9, 2, 0, false}, {9, 0, 2, false}, {9, -1, 0, false}, {9, 0, -1, false},
    };
    for (const auto& each : cases) {
        GuardedBuffer out(static_cast<std::size_t>(std::max(each.size, 0)));
        const std::string before(out.data(), out.size());
        EXPECT_EQ(each.found, table.Query(out, each.size, each.row, each.column))
            << each.size << " at " << each.row << ", " << each.column;
        EXPECT_EQ(each.found, std::string(out.data(), out.size()) != before);
    }
    EXPECT_FALSE(table.Query(nullptr, 9, 0, 0));
}

TEST(TableReader, KeepsItsTableWhenTheSourceOfACopyGoes)
{
    auto first = std::make_unique<CTableReader>(FromFile("a\tb\r\n1\t2"));
    CTableReader copy = *first;
    CTableReader assigned = FromFile("other");
    assigned = copy;
    first.reset();
    copy = FromFile("new");
    EXPECT_EQ("new,", Shown(copy));
    EXPECT_EQ("a,b,|1,2,", Shown(assigned));
}

TEST(TableReader, AnswersAsAPlainScanDoes)
{
    const std::vector<std::string> cells = {
        "",         "a",       "A",    "b", "'ab'",         "\"AB",         "aB\tx",
        "\xE4",     "\xC4",    "\"\"", "'", "long wording", "Long Wording", "abcdefgh",
        "ABCDEFGH", "abcdefgi"};
    std::mt19937 random(20);
    const auto pick = [&random](const auto& from) { return from[random() % from.size()]; };
    for (int round = 0; round < 200; ++round) {
        const char delimiter = round % 2 ? ';' : '|';
        const std::vector<std::string> columns = {"key", "name", "Kind", "KEY", "other"};
        std::vector<std::string> lines = {"key"s + delimiter + "name" + delimiter + "Kind"};
        for (auto rows = random() % 40; rows > 0; --rows) {
            std::string line = pick(cells);
            for (auto more = random() % 4; more > 0; --more)
                line += delimiter + pick(cells);
            lines.push_back(line);
        }
        std::string bytes;
        for (const std::string& line : lines)
            bytes += (bytes.empty() ? "" : "\r\n") + line;
        if (lines.back().empty())
            bytes += '\r';
        const CTableReader table = FromFile(bytes, delimiter);
        const PlainTable plain(delimiter, lines);
        for (int query = 0; query < 100; ++query) {
            const int most = static_cast<int>(random() % 4);
            const DWORD flags = pick(std::vector<DWORD>{0, 1}) * kQueryUnique |
                                pick(std::vector<DWORD>{0, 1}) * kQueryIgnoreCase;
            Criteria criteria;
            for (auto count = random() % 3; count > 0; --count)
                criteria.emplace_back(pick(columns), pick(cells));
            const std::string returned = pick(columns);
            const auto column = [&](std::size_t i) {
                return i < criteria.size() ? criteria[i].first.c_str() : nullptr;
            };
            const auto value = [&](std::size_t i) {
                return i < criteria.size() ? criteria[i].second : "";
            };
            const auto [count, text] = plain.Query(most, flags & kQueryUnique,
                                                   flags & kQueryIgnoreCase, returned, criteria);
            EXPECT_EQ((Found{count, text}), Ask(table, most, flags, returned.c_str(), column(0),
                                                value(0), column(1), value(1)))
                << bytes << "\nreturned " << returned << ", most " << most << ", flags " << flags
                << ", criteria " << testing::PrintToString(criteria);
        }
    }
}
