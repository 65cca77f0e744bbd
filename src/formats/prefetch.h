// A hint to the processor.
#pragma once

namespace qx {

// What stands there will soon be read; any address will do.
inline void Prefetch([[maybe_unused]] const void* address)
{
#if defined(__GNUC__)
    __builtin_prefetch(address);
#endif
}

}  // namespace qx
