#include "ui/dialog_template.h"

#include "support/guarded_buffer.h"

#include <cstdint>
#include <cstring>
#include <gmock/gmock.h>

using qx::test::GuardedBuffer;

TEST(DialogTemplate, LosesItsContextHelpButton)
{
    struct Case {
        const char* name;
        std::vector<std::uint32_t> before, after;
    };
    const Case cases[] = {
        {"plain", {0x80C82000, 0x2000, 7}, {0x80C80000, 0x2000, 7}},
        {"without it", {0x80C80044, 0x2000, 7}, {0x80C80044, 0x2000, 7}},
        {"extended",
         {0xFFFF0001, 0x2000, 0x2000, 0x80C82044},
         {0xFFFF0001, 0x2000, 0x2000, 0x80C80044}},
    };
    for (const Case& c : cases) {
        const std::size_t size = c.before.size() * sizeof(std::uint32_t);
        GuardedBuffer buffer(size);
        std::memcpy(buffer.data(), c.before.data(), size);
        qx::ClearContextHelp(buffer.data());
        std::vector<std::uint32_t> after(c.before.size());
        std::memcpy(after.data(), buffer.data(), size);
        EXPECT_EQ(c.after, after) << c.name;
    }
    qx::ClearContextHelp(nullptr);
}
