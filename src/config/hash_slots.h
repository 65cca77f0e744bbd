// A hash table of numbers; what they stand for is its user's.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace qx {

class HashSlots {
  public:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    // For at most `count` values.
    explicit HashSlots(std::size_t count) : m_slots(std::bit_ceil(count * 5 / 4 + 1)) {}

    // The value of this hash for which isIt(value) holds; kNone when there is none.
    template <class IsIt>
    std::uint32_t Find(std::uint32_t hash, IsIt isIt) const
    {
        return m_slots[Seek(hash, isIt)].value;
    }
    // The place of that value, kNone until it is set.
    template <class IsIt>
    std::uint32_t& Place(std::uint32_t hash, IsIt isIt)
    {
        Slot& slot = m_slots[Seek(hash, isIt)];
        slot.hash = hash;
        return slot.value;
    }

  private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t value = kNone;
    };

    template <class IsIt>
    std::size_t Seek(std::uint32_t hash, IsIt isIt) const
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t at = hash & mask;
        while (m_slots[at].value != kNone && !(m_slots[at].hash == hash && isIt(m_slots[at].value)))
            at = (at + 1) & mask;
        return at;
    }

    std::vector<Slot> m_slots;  // a power of two; at least a fifth of them are free
};

}  // namespace qx
