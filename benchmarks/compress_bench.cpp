// Compression of texts and restoring them, beside LZ4, zlib and zstd. "to 48 %" in a name is the
// size of the compressed form. LZ4's thorough mode is the nearest kin: the same kind of tokens,
// with a search that is not exhaustive.
#include "formats/oracle/plain_compression.h"
#include "support/bench.h"
#include "support/fibonacci.h"

#include <qxutility/formats/compression.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <lz4.h>
#include <lz4hc.h>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>
#include <zlib.h>
#include <zstd.h>

using qx::bench::DoNotOptimize;
using qx::bench::Faster;
using qx::bench::Goal;
using qx::bench::Peer;
using qx::bench::Table;
using Random = std::mt19937;

namespace {

constexpr std::size_t kKi = 1024, kMi = kKi * kKi;

// A word of one to four syllables.
std::string Word(Random& random)
{
    static const char* const kStarts[] = {"b", "c", "d", "f", "l", "m", "n", "p",  "r",  "s",
                                          "t", "w", "h", "g", "v", "",  "",  "th", "pr", "st"};
    static const char* const kEnds[] = {"a",  "e",  "i",  "o",   "er", "in", "on", "en", "at",
                                        "es", "ed", "al", "ing", "ou", "ea", "is", "ar", "y"};
    std::string word;
    for (unsigned long syllables = 1 + random() % 4; syllables > 0; --syllables) {
        word += kStarts[random() % std::size(kStarts)];
        word += kEnds[random() % std::size(kEnds)];
    }
    return word;
}

// Prose: the n-th word of a vocabulary is n times as rare as the first, and phrases come back.
std::string Prose(std::size_t size)
{
    Random random(1);
    std::vector<std::string> words;
    for (int i = 0; i < 20000; ++i)
        words.push_back(Word(random));
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<std::size_t> said;
    std::unordered_map<std::size_t, std::size_t> last;  // where a word was last followed by another
    std::string text;
    while (text.size() < size) {
        auto word =
            static_cast<std::size_t>(std::pow(static_cast<double>(words.size()), unit(random))) - 1;
        if (!said.empty()) {
            const auto before = last.find(said.back());
            if (before != last.end() && random() % 100 < 45)
                word = said[before->second + 1];
            last[said.back()] = said.size() - 1;
        }
        said.push_back(word);
        text += words[word];
        text += random() % 9 ? " " : random() % 2 ? ", " : ".\r\n";
    }
    text.resize(size);
    return text;
}

// A file of toolbars.
std::string Toolbars(std::size_t size)
{
    Random random(2);
    std::string text = "<TOOLBARS>\r\n";
    for (int bar = 1; text.size() < size; ++bar) {
        text += "  <TOOLBAR name=\"" + Word(random) + "\" id=\"" + std::to_string(bar) +
                "\" docked=\"1\" visible=\"" + std::to_string(random() % 2) + "\">\r\n";
        for (unsigned long buttons = random() % 20; buttons > 0; --buttons) {
            text += "    <BUTTON id=\"" + std::to_string(32000 + random() % 900) + "\" text=\"" +
                    Word(random) + "\" bitmap=\"" + std::to_string(random() % 128) + "\" style=\"" +
                    (random() % 5 ? "button" : "separator") + "\"/>\r\n";
        }
        text += "  </TOOLBAR>\r\n";
    }
    text.resize(size);
    return text;
}

std::string Noise(std::size_t size, unsigned letters)
{
    Random random(3);
    std::string text(size, '\0');
    for (char& c : text)
        c = static_cast<char>(' ' + random() % letters);
    return text;
}

std::string Repeated(const std::string& period, std::size_t size)
{
    std::string text;
    while (text.size() < size)
        text += period;
    text.resize(size);
    return text;
}

// Fields of a fixed width, each with the same start and a few letters of its own.
std::string Records(std::size_t size)
{
    Random random(4);
    std::string text;
    while (text.size() < size)
        text += "PIPELINE" + std::to_string(1000 + random() % 9000);
    text.resize(size);
    return text;
}

struct Codec {
    std::string name;
    std::function<std::size_t(std::size_t)> bound;
    std::function<std::size_t(const std::string&, std::string&)> compress;  // returns the size
    std::function<void(const char*, std::size_t, std::string&)> restore;
};

int Int(std::size_t size)
{
    return static_cast<int>(size);
}

const Codec kLz4Thorough = {
    "LZ4 HC level 9",
    [](std::size_t size) { return static_cast<std::size_t>(LZ4_compressBound(Int(size))); },
    [](const std::string& text, std::string& out) {
        return static_cast<std::size_t>(
            LZ4_compress_HC(text.data(), out.data(), Int(text.size()), Int(out.size()), 9));
    },
    [](const char* in, std::size_t size, std::string& text) {
        DoNotOptimize(LZ4_decompress_safe(in, text.data(), Int(size), Int(text.size())));
    }};
const Codec kLz4 = {"LZ4", kLz4Thorough.bound,
                    [](const std::string& text, std::string& out) {
                        return static_cast<std::size_t>(LZ4_compress_default(
                            text.data(), out.data(), Int(text.size()), Int(out.size())));
                    },
                    kLz4Thorough.restore};
const Codec kZlib = {"zlib level 6", [](std::size_t size) { return ::compressBound(size); },
                     [](const std::string& text, std::string& out) {
                         uLongf size = out.size();
                         ::compress2(reinterpret_cast<Bytef*>(out.data()), &size,
                                     reinterpret_cast<const Bytef*>(text.data()), text.size(), 6);
                         return std::size_t{size};
                     },
                     [](const char* in, std::size_t size, std::string& text) {
                         uLongf restored = text.size();
                         ::uncompress(reinterpret_cast<Bytef*>(text.data()), &restored,
                                      reinterpret_cast<const Bytef*>(in), size);
                     }};
const Codec kZstd = {"zstd level 1", [](std::size_t size) { return ZSTD_compressBound(size); },
                     [](const std::string& text, std::string& out) {
                         return ZSTD_compress(out.data(), out.size(), text.data(), text.size(), 1);
                     },
                     [](const char* in, std::size_t size, std::string& text) {
                         DoNotOptimize(ZSTD_decompress(text.data(), text.size(), in, size));
                     }};

// " to 48 %"
std::string To(std::size_t compressed, std::size_t size)
{
    char text[32];
    std::snprintf(text, sizeof text, ", to %.3g %%",
                  100.0 * static_cast<double>(compressed) / static_cast<double>(size));
    return text;
}

std::string SizeText(std::size_t size)
{
    return size >= kMi   ? std::to_string(size / kMi) + " MiB"
           : size >= kKi ? std::to_string(size / kKi) + " KiB"
                         : std::to_string(size) + " bytes";
}

void CompareCompress(Table& table, const std::string& name, const std::string& text, double goal,
                     std::vector<Peer> more = {})
{
    const auto peer = [&](const Codec& codec, Goal wanted) {
        std::string out(codec.bound(text.size()), '\0');
        const std::size_t size = codec.compress(text, out);
        return Peer{codec.name + To(size, text.size()),
                    [&text, &codec, out]() mutable { DoNotOptimize(codec.compress(text, out)); },
                    wanted};
    };
    std::vector<Peer> peers = {peer(kLz4Thorough, Faster(goal)), peer(kLz4, {}), peer(kZlib, {}),
                               peer(kZstd, {})};
    peers.insert(peers.end(), more.begin(), more.end());
    table.Compare(
        SizeText(text.size()) + name + To(Compression::Compress(text).size(), text.size()),
        [&] { DoNotOptimize(Compression::Compress(text)); }, peers);
}

// The reader that takes one byte at a time: an array that doubles, cleared, cut at the first NUL.
std::string RestoreByteByByte(const std::string& in)
{
    std::string out(in.size(), '\0');
    std::size_t at = 1, size = 0;
    const auto put = [&](char byte) {
        if (size + 1 >= out.size())
            out.resize(2 * out.size());
        out[size++] = byte;
    };
    const auto number = [&] {
        std::uint32_t value = 0;
        unsigned char byte = 0x80;
        while (byte & 0x80) {
            byte = static_cast<unsigned char>(in[at++]);
            value = value << 7 | (byte & 0x7F);
        }
        return value;
    };
    while (at < in.size()) {
        const char byte = in[at++];
        if (byte != in[0]) {
            put(byte);
        } else if (in[at] == '\0') {
            put(byte);
            ++at;
        } else {
            std::uint32_t length = number();
            for (const std::uint32_t distance = number(); length > 0; --length)
                put(out[size - distance]);
        }
    }
    return out.c_str();
}

void CompareRestore(Table& table, const std::string& name, const std::string& text, double goal)
{
    const std::string ours = Compression::Compress(text);
    const auto peer = [&](const Codec& codec, Goal wanted) {
        std::string in(codec.bound(text.size()), '\0');
        in.resize(codec.compress(text, in));
        std::string out(text.size(), '\0');
        return Peer{codec.name,
                    [&codec, in, out]() mutable { codec.restore(in.data(), in.size(), out); },
                    wanted};
    };
    table.Compare(
        SizeText(text.size()) + name, [&] { DoNotOptimize(Compression::Uncompress(ours)); },
        {peer(kLz4Thorough, Faster(goal)),
         peer(kZlib, {}),
         peer(kZstd, {}),
         {"a byte at a time", [&] { DoNotOptimize(RestoreByteByByte(ours)); }, Faster(2.5)}});
}

// Of the processor's time, like the tables.
double CompressSeconds(const std::string& text)
{
    const std::clock_t start = std::clock();
    DoNotOptimize(Compression::Compress(text));
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// Texts that search structures are afraid of; true when none is slow.
bool MeasureShapes(std::size_t size)
{
    constexpr double kLeast = 2.5;
    const std::pair<const char*, std::string> kShapes[] = {
        {"one byte", std::string(size, 'x')},
        {"a period of 2", Repeated("ab", size)},
        {"a period of 7", Repeated("abcdefg", size)},
        {"Fibonacci string", qx::test::Fibonacci(size)},
        {"two-letter noise", Noise(size, 2)},
        {"noise of 16 letters", Noise(size, 16)},
        {"noise of 64 letters", Noise(size, 64)},
        {"noise of all bytes", Noise(size, 256)},
        {"records", Records(size)},
    };
    bool reached = true;
    std::printf("\nCompressing %s, MB/s (goal: at least %.1f)\n", SizeText(size).c_str(), kLeast);
    for (const auto& [name, text] : kShapes) {
        const double speed = static_cast<double>(size) / CompressSeconds(text) / 1e6;
        std::printf("%-34s %10.1f  %s\n", name, speed, speed >= kLeast ? "reached" : "MISSED");
        reached = reached && speed >= kLeast;
    }
    return reached;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::string prose = Prose(16 * kMi);
    Table compress("Compression::Compress", argc, argv);
    const std::string small = prose.substr(kMi, 200), page = prose.substr(kMi, 4 * kKi),
                      file = prose.substr(kMi, 64 * kKi), large = prose.substr(kMi, kMi),
                      toolbars = Toolbars(64 * kKi);
    CompareCompress(compress, " of text", small, 1.5);
    CompareCompress(compress, " of text", page, 0.65);
    CompareCompress(compress, " of text", file, 0.9);
    CompareCompress(compress, " of toolbars", toolbars, 0.7);
    bool reached = compress.Print() == 0;

    char option[] = "--rounds", rounds[] = "3";
    std::vector<char*> few(argv, argv + argc);
    few.insert(few.begin() + 1, {option, rounds});
    Table compressLarge("Compression::Compress", argc + 2, few.data());
    CompareCompress(compressLarge, " of text", large, 0.3,
                    {{"the exhaustive search",
                      [&] { DoNotOptimize(qx::test::PlainCompress(large)); }, Faster(25)}});
    CompareCompress(compressLarge, " of text", prose, 0.12);
    reached = compressLarge.Print() == 0 && reached;

    Table restore("Compression::Uncompress", argc, argv);
    CompareRestore(restore, " of text", page, 0.55);
    CompareRestore(restore, " of text", file, 0.55);
    CompareRestore(restore, " of toolbars", toolbars, 0.55);
    CompareRestore(restore, " of text", large, 0.3);
    CompareRestore(restore, " of text", prose, 0.3);
    reached = restore.Print() == 0 && reached;

    for (const std::size_t size : {128 * kKi, 16 * kMi})
        reached = MeasureShapes(size) && reached;
    return reached ? 0 : 1;
}
