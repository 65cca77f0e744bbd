// Strings by number against an ICU resource bundle, wordings against gettext, on tables of several
// sizes with the same texts for all.
#include "support/bench.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <libintl.h>
#include <locale.h>
#include <memory>
#include <random>
#include <string>
#include <unicode/ures.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using qx::bench::CostAtMost;
using qx::bench::DoNotOptimize;
using qx::bench::Faster;

constexpr unsigned kFirstId = 1000;
constexpr std::size_t kLanguages = 7;  // beside the key column
constexpr std::size_t kLookUps = 8192;
constexpr std::size_t kInUse = 500;  // texts that a program shows again and again
constexpr int kBufferSize = 256;
constexpr char kHeader[] = "IDS\t09-01\t07-01\t12-01\t10-01\t16-01\t22-01\t19-01\r\n";

[[noreturn]] void Fail(const std::string& what)
{
    std::fprintf(stderr, "language benchmark: %s\n", what.c_str());
    std::exit(2);
}

void Run(const std::string& command)
{
    if (std::system(command.c_str()) != 0)
        Fail("failed: " + command);
}

// One to four words and a number that makes the text the only one of its kind.
std::string SomeText(std::mt19937& random, std::size_t number)
{
    static constexpr const char* kWords[] = {
        "pump",     "valve",     "pipe",      "flow",    "pressure",    "drop",   "head",
        "loss",     "node",      "result",    "report",  "open",        "close",  "file",
        "design",   "point",     "curve",     "units",   "temperature", "fluid",  "density",
        "network",  "viscosity", "solve",     "error",   "warning",     "select", "option",
        "settings", "range",     "thickness", "diameter"};
    std::string text;
    for (auto words = 1 + random() % 4; words > 0; --words)
        text += std::string(kWords[random() % std::size(kWords)]) + ' ';
    text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text + std::to_string(number);
}

using Key = std::array<char, 12>;
Key BundleKey(std::size_t row)
{
    Key key;
    std::snprintf(key.data(), key.size(), "s%06u", kFirstId + static_cast<unsigned>(row));
    return key;
}

using Row = std::array<std::string, kLanguages>;

std::vector<Row> SomeRows(std::size_t count)
{
    std::mt19937 random(1);
    std::vector<Row> rows(count);
    for (std::size_t i = 0; i < count; ++i) {
        for (std::string& text : rows[i])
            text = SomeText(random, i);
    }
    return rows;
}

// The same texts as a language table, a resource bundle and a message catalogue.
struct Sources {
    Sources(const fs::path& place, const std::string& domain, const std::vector<Row>& rows)
        : folder(place.string()),
          table(folder + "/table.dat"),
          catalogue(folder + "/de/LC_MESSAGES/" + domain + ".mo")
    {
        fs::create_directories(fs::path(catalogue).parent_path());
        WriteTable(rows);
        WriteBundle(rows);
        WriteMessages(rows);
        Run("genrb -q -d '" + folder + "' '" + folder + "/root.txt'");
        Run("msgfmt -o '" + catalogue + "' '" + folder + "/rows.po'");
    }

    std::string folder, table, catalogue;

  private:
    void WriteTable(const std::vector<Row>& rows) const
    {
        std::ofstream file(table, std::ios::binary);
        file << kHeader;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            file << kFirstId + i;
            for (const std::string& text : rows[i])
                file << '\t' << text;
            file << "\r\n";
        }
    }
    void WriteBundle(const std::vector<Row>& rows) const
    {
        std::ofstream file(folder + "/root.txt");
        file << "root {\n";
        // From the last to the first: genrb keeps a sorted list and looks for a key's place in it
        // from the front.
        for (std::size_t i = rows.size(); i-- > 0;)
            file << BundleKey(i).data() << "{\"" << rows[i][1] << "\"}\n";
        file << "}\n";
    }
    void WriteMessages(const std::vector<Row>& rows) const
    {
        std::ofstream file(folder + "/rows.po");
        file << "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";
        for (const Row& row : rows)
            file << "msgid \"" << row[0] << "\"\nmsgstr \"" << row[1] << "\"\n";
    }
};

// What is looked up, in order; packed, so that it takes little of the processor's caches.
struct LookUps {
    LookUps(const std::vector<Row>& rows, const std::vector<std::size_t>& sought)
    {
        for (const std::size_t row : sought) {
            ids.push_back(kFirstId + static_cast<unsigned>(row));
            keys.push_back(BundleKey(row));
            m_texts += rows[row][0] + '\0';
        }
        for (char* text = m_texts.data(); text != m_texts.data() + m_texts.size();
             text += std::strlen(text) + 1)
            english.push_back(text);
    }

    std::vector<unsigned> ids;
    std::vector<Key> keys;
    std::vector<char*> english;

  private:
    std::string m_texts;
};

// Look-ups all over a table's rows, in an order that the processor cannot learn.
std::vector<std::size_t> Anywhere(std::size_t rows)
{
    std::mt19937 random(7);
    std::vector<std::size_t> sought(kLookUps);
    for (std::size_t& row : sought)
        row = random() % rows;
    return sought;
}

// As many, of few rows that lie anywhere.
std::vector<std::size_t> InUse(std::size_t rows)
{
    const std::vector<std::size_t> few = Anywhere(rows);
    std::mt19937 random(8);
    std::vector<std::size_t> sought(kLookUps);
    for (std::size_t& row : sought)
        row = few[random() % kInUse];
    return sought;
}

// The contestants on one table.
class Case {
  public:
    Case(const fs::path& folder, std::size_t count)
        : name(std::to_string(count) + " rows"),
          m_rows(SomeRows(count)),
          m_domain("rows" + std::to_string(count)),
          m_sources(folder / m_domain, m_domain, m_rows),
          m_table(m_sources.table.c_str(), '\t', nullptr, nullptr),
          anywhere(m_rows, Anywhere(count)),
          inUse(m_rows, InUse(count))
    {
        m_language.SetStringTable(&m_table);
        m_language.SetLanguage(7, 1);
        UErrorCode status = U_ZERO_ERROR;
        m_bundle.reset(ures_open(m_sources.folder.c_str(), "root", &status));
        if (U_FAILURE(status))
            Fail(u_errorName(status));
        bindtextdomain(m_domain.c_str(), m_sources.folder.c_str());
        Check();
    }

    auto StringInBuffer(const LookUps& lookUps) const
    {
        return [this, &lookUps] {
            char text[kBufferSize];
            for (const unsigned id : lookUps.ids) {
                m_language.String(nullptr, id, text, kBufferSize);
                DoNotOptimize(text);
            }
        };
    }
    auto StringAllocated(const LookUps& lookUps) const
    {
        return [this, &lookUps] {
            for (const unsigned id : lookUps.ids) {
                char* text;
                m_language.String(nullptr, id, text);
                DoNotOptimize(*text);
                delete[] text;
            }
        };
    }
    auto BundleString() const
    {
        return [this] {
            for (const auto& key : anywhere.keys)
                DoNotOptimize(*FromBundle(key.data()));
        };
    }
    // The text in 8 bits, in a buffer.
    auto BundleUtf8String() const
    {
        return [this] {
            char text[kBufferSize];
            for (const auto& key : anywhere.keys) {
                UErrorCode status = U_ZERO_ERROR;
                int32_t length = kBufferSize;
                DoNotOptimize(*ures_getUTF8StringByKey(m_bundle.get(), key.data(), text, &length,
                                                       true, &status));
            }
        };
    }
    auto Text(const LookUps& lookUps) const
    {
        return [this, &lookUps] {
            char text[kBufferSize];
            for (char* english : lookUps.english) {
                m_language.Text(english, text, kBufferSize, 0);
                DoNotOptimize(text);
            }
        };
    }
    auto Gettext() const
    {
        return [this] {
            for (const char* english : anywhere.english)
                DoNotOptimize(*dgettext(m_domain.c_str(), english));
        };
    }

    const std::string& TableFile() const { return m_sources.table; }
    const std::string& CatalogueFile() const { return m_sources.catalogue; }

    const std::string name;

  private:
    const UChar* FromBundle(const char* key) const
    {
        UErrorCode status = U_ZERO_ERROR;
        int32_t length;
        return ures_getStringByKey(m_bundle.get(), key, &length, &status);
    }

    // All find the same.
    void Check() const
    {
        for (std::size_t i = 0; i < kLookUps; ++i) {
            std::string fromBundle;
            const UChar* wide = FromBundle(anywhere.keys[i].data());
            for (; wide && *wide; ++wide)
                fromBundle += static_cast<char>(*wide);
            char text[kBufferSize];
            m_language.Text(anywhere.english[i], text, kBufferSize, 0);
            const std::string& german = m_rows[anywhere.ids[i] - kFirstId][1];
            if (german != m_language.String(nullptr, anywhere.ids[i]) || german != fromBundle ||
                german != text || german != dgettext(m_domain.c_str(), anywhere.english[i]))
                Fail("not all have found: " + german);
        }
    }

    struct Close {
        void operator()(UResourceBundle* bundle) const { ures_close(bundle); }
    };

    const std::vector<Row> m_rows;
    const std::string m_domain;
    const Sources m_sources;
    CTableReader m_table;
    CLanguage m_language;
    std::unique_ptr<UResourceBundle, Close> m_bundle;

  public:
    const LookUps anywhere, inUse;
};

void CompareLookUps(qx::bench::Table& table, const Case& rows)
{
    table.Compare("String in a buffer, " + rows.name, rows.StringInBuffer(rows.anywhere),
                  {{"ures_getStringByKey", rows.BundleString(), Faster(5)},
                   {"ures_getUTF8StringByKey", rows.BundleUtf8String()}},
                  kLookUps);
    table.Compare("String allocated, " + rows.name, rows.StringAllocated(rows.anywhere),
                  {{"ures_getStringByKey", rows.BundleString(), Faster(2)}}, kLookUps);
    table.Compare("Text, " + rows.name, rows.Text(rows.anywhere),
                  {{"dgettext", rows.Gettext(), Faster(2)}}, kLookUps);
}

// What a large table costs beside a small one: the look-up itself when as many texts are in use,
// and the processor's caches as well when they are anywhere.
void CompareGrowth(qx::bench::Table& table, const Case& small, const Case& large,
                   const LookUps Case::*which, const std::string& what, qx::bench::Goal goal)
{
    const auto compare = [&](const std::string& name, auto contestant) {
        table.Compare(name + what, (large.*contestant)(large.*which),
                      {{small.name, (small.*contestant)(small.*which), goal}}, kLookUps);
    };
    compare("String in a buffer", &Case::StringInBuffer);
    compare("String allocated", &Case::StringAllocated);
    compare("Text", &Case::Text);
}

// For information: a table is taken apart and copied, a catalogue is used as it lies in the file.
void CompareLoading(qx::bench::Table& table, const Case& rows)
{
    const auto load = [&rows] {
        DoNotOptimize(CTableReader(rows.TableFile().c_str(), '\t', nullptr, nullptr).Valid());
    };
    const auto read = [&rows] {
        std::string bytes(fs::file_size(rows.CatalogueFile()), '\0');
        std::ifstream(rows.CatalogueFile(), std::ios::binary)
            .read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        DoNotOptimize(bytes);
    };
    table.Compare("Load, " + rows.name + " of 7 languages", load,
                  {{"read .mo of 1 language", read}});
}

}  // namespace

int main(int argc, char** argv)
{
    setlocale(LC_ALL, "C.UTF-8");
    setenv("LANGUAGE", "de", 1);
    const fs::path folder = fs::temp_directory_path() / ("qx_bench_" + std::to_string(getpid()));
    qx::bench::Table table("Strings and wordings in the user's language", argc, argv);
    {
        const Case small(folder, 500), middle(folder, 10000), large(folder, 100000);
        for (const Case* rows : {&small, &middle, &large})
            CompareLookUps(table, *rows);
        CompareGrowth(table, small, large, &Case::inUse, ", 500 of 100000 rows", CostAtMost(1.5));
        CompareGrowth(table, small, large, &Case::anywhere, ", any of 100000 rows", {});
        for (const Case* rows : {&small, &middle, &large})
            CompareLoading(table, *rows);
    }
    fs::remove_all(folder);
    return table.Print();
}
