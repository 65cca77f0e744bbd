#include "formats/xml_entities.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace qx {

struct Entity {
    char character;
    std::string_view text;
};

// In the order in which they are tried.
static constexpr Entity kEntities[] = {
    {'>', "&gt;"}, {'<', "&lt;"}, {'&', "&amp;"}, {'\'', "&apos;"}, {'"', "&quot;"}};
static constexpr std::size_t kLongestEntity = 6;

struct Decoded {
    char character;
    std::size_t length;  // of what stood for it
};

// What the '&' means with which the text begins. What stands between it and the next ';' or the end
// of the text need only be the beginning of an entity: files in the field rely on "&g;" and the
// like.
static Decoded DecodeEntity(std::string_view text)
{
    const std::string_view reference = text.substr(0, kLongestEntity);
    const std::string_view beginning = reference.substr(0, reference.find(';'));
    for (const auto& [character, entity] : kEntities)
        if (entity.starts_with(beginning))
            return {character, std::min(beginning.size() + 1, text.size())};
    return {'&', 1};
}

std::size_t XmlUnescape(std::string_view text, char* out, std::size_t room)
{
    std::size_t length = 0;
    const auto put = [&](std::string_view piece) {
        if (length < room)
            piece.copy(out + length, room - length);
        length += piece.size();
    };
    while (!text.empty() && length <= room) {
        const std::size_t plain = std::min(text.find('&'), text.size());
        put(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty())
            break;
        const Decoded decoded = DecodeEntity(text);
        put({&decoded.character, 1});
        text.remove_prefix(decoded.length);
    }
    return length;
}

static std::string_view EntityOf(char character)
{
    const auto* found =
        std::find_if(std::begin(kEntities), std::end(kEntities),
                     [=](const Entity& each) { return each.character == character; });
    return found->text;
}

// Looked up, as texts are short and most of their characters are plain.
static constexpr auto kIsSpecial = [] {
    std::array<bool, 256> isSpecial{};
    for (const Entity& each : kEntities)
        isSpecial[static_cast<unsigned char>(each.character)] = true;
    return isSpecial;
}();

void AppendXmlEscaped(std::string_view text, std::string& escaped)
{
    for (;;) {
        const auto* special = std::find_if(text.begin(), text.end(), [](char c) {
            return kIsSpecial[static_cast<unsigned char>(c)];
        });
        const auto plain = static_cast<std::size_t>(special - text.begin());
        escaped.append(text.substr(0, plain));
        if (plain == text.size())
            return;
        escaped.append(EntityOf(text[plain]));
        text.remove_prefix(plain + 1);
    }
}

}  // namespace qx
