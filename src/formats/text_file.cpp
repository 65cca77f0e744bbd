#include "formats/line_ends.h"
#include "platform/files.h"

#include <qxutility/formats/text_file.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

static const char* FindNul(const char* begin, const char* end)
{
    const void* found = std::memchr(begin, '\0', static_cast<std::size_t>(end - begin));
    return found ? static_cast<const char*>(found) : end;
}

// The file is seen in slices of 4095 bytes, and applications see where two of them meet: an LF at
// the start of a slice is skipped even inside a line, and a NUL cuts what its slice adds to a line.
// The slices are cut from larger blocks, so that the system is asked less often.
class TextFile::Reader {
  public:
    explicit Reader(const char* path)
        : m_file(path, qx::platform::FileMode::Read), m_size(m_file.Size().value_or(0))
    {
        UseBlock(0, 0);
    }

    bool IsOpen() const { return static_cast<bool>(m_file); }
    std::uint64_t Size() const { return m_size; }
    bool AtEnd() const { return m_position >= m_eof; }
    void Restart();

    // Hands over what each slice adds to the next line, as string views.
    template <typename Take>
    void TakeLine(Take take)
    {
        bool ended = false;
        while (!ended) {
            std::string_view piece;
            ended = NextPiece(piece);
            take(piece);
        }
    }

  private:
    static constexpr std::size_t kSliceSize = 4095;
    static constexpr std::size_t kBlockSize = 32 * kSliceSize;

    bool NextPiece(std::string_view& piece);
    const char* CutAtNul(const char* end);
    void NextSlice();
    void UseSlice();
    void NextBlock();
    void UseBlock(std::uint64_t offset, std::size_t size);
    std::uint64_t Consumed() const
    {
        return m_blockOffset + static_cast<std::uint64_t>(m_position - m_block.data());
    }

    qx::platform::File m_file;
    std::uint64_t m_size;
    std::uint64_t m_blockOffset = 0;  // in the file
    const char* m_blockEnd;
    const char* m_sliceBegin;
    const char* m_sliceEnd;
    const char* m_position;
    const char* m_nextNul;  // from the position on; the slice's end without one
    const char* m_eof;      // the position where the file is consumed; behind the block without one
    // The place in the slice of the next CR from the position on; the slice's size without one.
    const std::uint16_t* m_nextCr;
    std::array<std::uint16_t, kSliceSize + qx::kLineEndSpare> m_lineEnds;
    std::array<char, kBlockSize + 1> m_block;
};

void TextFile::Reader::Restart()
{
    m_file.Seek(0);
    UseBlock(0, 0);
}

void TextFile::Reader::UseBlock(std::uint64_t offset, std::size_t size)
{
    m_blockOffset = offset;
    m_position = m_sliceBegin = m_sliceEnd = m_block.data();
    m_blockEnd = m_block.data() + size;
    const std::uint64_t left = m_size - std::min(m_size, offset);
    m_eof = m_block.data() + std::min<std::uint64_t>(left, m_block.size());
    UseSlice();
}

void TextFile::Reader::NextBlock()
{
    const std::size_t size = m_file.Read(m_block.data(), kBlockSize).value_or(0);
    UseBlock(Consumed(), size);
    if (size == 0)
        m_eof = m_position;  // also when the file has shrunk or cannot be read
}

void TextFile::Reader::NextSlice()
{
    if (m_position == m_blockEnd)
        NextBlock();
    m_sliceBegin = m_sliceEnd;
    m_sliceEnd += std::min(kSliceSize, static_cast<std::size_t>(m_blockEnd - m_sliceEnd));
    UseSlice();
}

void TextFile::Reader::UseSlice()
{
    const auto size = static_cast<std::size_t>(m_sliceEnd - m_sliceBegin);
    *qx::FindLineEnds(m_sliceBegin, size, m_lineEnds.data()) = static_cast<std::uint16_t>(size);
    m_nextCr = m_lineEnds.data();
    m_nextNul = FindNul(m_sliceBegin, m_sliceEnd);
}

// Where the piece that ends at `end` is cut by a NUL.
const char* TextFile::Reader::CutAtNul(const char* end)
{
    const char* const cut = m_nextNul;
    m_nextNul = FindNul(end, m_sliceEnd);
    return cut;
}

// What the slice adds to the line; true when the line ends in this slice.
inline bool TextFile::Reader::NextPiece(std::string_view& piece)
{
    if (m_position == m_sliceEnd)
        NextSlice();
    if (m_position == m_sliceEnd)
        return true;
    const char* const begin = m_position + (*m_position == '\n');
    const char* const end = m_sliceBegin + *m_nextCr;
    const bool found = end != m_sliceEnd;
    const char* const cut = m_nextNul < end ? CutAtNul(end) : end;
    piece = {begin, static_cast<std::size_t>(cut - begin)};
    m_position = end + found;
    m_nextCr += found;
    return found;
}

TextFile::TextFile(const char* path) noexcept : m_reader(std::make_unique<Reader>(path)) {}
TextFile::TextFile(TextFile&& other) noexcept = default;
TextFile& TextFile::operator=(TextFile&& other) noexcept = default;
TextFile::~TextFile() = default;

bool TextFile::ValidFile() const
{
    return m_reader->IsOpen();
}

void TextFile::ReadLine(char* line)
{
    m_reader->TakeLine([&line](std::string_view piece) {
        qx::CopyLine(piece.data(), piece.size(), line);
        line += piece.size();
    });
    *line = '\0';
}

std::size_t TextFile::ReadLine(char* line, std::size_t size)
{
    std::size_t length = 0, kept = 0;
    const std::size_t room = size > 0 ? size - 1 : 0;
    m_reader->TakeLine([&](std::string_view piece) {
        kept += piece.copy(line + kept, room - kept);
        length += piece.size();
    });
    if (size > 0)
        line[kept] = '\0';
    return length;
}

void TextFile::ReadLine(std::string& line) noexcept
{
    line.clear();
    m_reader->TakeLine([&line](std::string_view piece) { line += piece; });
}

bool TextFile::eof() const
{
    return m_reader->AtEnd();
}

std::uint64_t TextFile::Size() const
{
    return m_reader->Size();
}

void TextFile::Restart()
{
    m_reader->Restart();
}
