#include "platform/resources.h"

#include "platform/module.h"

#include <qxutility/host.h>

#include <gtest/gtest.h>
#include <string>

namespace qx::test {
namespace {

using namespace platform;

std::string Digits(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += static_cast<char>('0' + i % 10);
    return text;
}

// The same resources as in resources_test.rc.
void RegisterResources()
{
#if !QX_WINDOWS
    host::RegisterString(nullptr, 1, "Caf\xE9");
    host::RegisterString(nullptr, 16, Digits(254));
    host::RegisterString(nullptr, 17, Digits(255));
    host::RegisterString(nullptr, 18, Digits(256));
    host::RegisterString(nullptr, 65535, Digits(1100));
    host::RegisterResource(nullptr, "#300", "XML", "<numbered/>");
    host::RegisterResource(nullptr, "Named", "XML", "<named/>");
    host::RegisterResource(nullptr, "#7", "#10", {"a\0b", 3});
#endif
}

const char* Number(std::uintptr_t number)
{
    return reinterpret_cast<const char*>(number);
}

TEST(ResourceString, IsWholeWhateverItsLength)
{
    RegisterResources();
    EXPECT_EQ("Caf\xE9", ResourceString(ThisModule(), 1));
    EXPECT_EQ("Caf\xE9", ResourceString(nullptr, 1));
    EXPECT_EQ(Digits(254), ResourceString(nullptr, 16));
    EXPECT_EQ(Digits(255), ResourceString(nullptr, 17));
    EXPECT_EQ(Digits(256), ResourceString(nullptr, 18));
    EXPECT_EQ(Digits(1100), ResourceString(nullptr, 65535));
}

TEST(ResourceString, IsNothingForANumberThatTheModuleLacks)
{
    RegisterResources();
    for (const unsigned id : {0u, 2u, 19u, 65536u + 1, 0x100000u + 1, 0xFFFFFFFFu})
        EXPECT_EQ(std::nullopt, ResourceString(ThisModule(), id)) << id;
}

TEST(ResourceBytes, AreFoundByNameAndNumberInAnyCase)
{
    RegisterResources();
    const struct {
        const char *name, *type, *bytes;
    } cases[] = {
        {"#300", "XML", "<numbered/>"},      {"#300", "xml", "<numbered/>"},
        {Number(300), "XML", "<numbered/>"}, {"Named", "XML", "<named/>"},
        {"NAMED", "Xml", "<named/>"},
    };
    for (const auto& [name, type, bytes] : cases)
        EXPECT_EQ(bytes, ResourceBytes(ThisModule(), name, type)) << bytes << " as " << type;
    EXPECT_EQ(std::string_view("a\0b", 3), ResourceBytes(nullptr, Number(7), Number(10)));
}

TEST(ResourceBytes, AreNothingForAResourceThatTheModuleLacks)
{
    RegisterResources();
    const struct {
        const char *name, *type;
    } cases[] = {{"300", "XML"},  {"#301", "XML"}, {"#300", "TXT"},
                 {"Name", "XML"}, {"", ""},        {"Named", ""}};
    for (const auto& [name, type] : cases)
        EXPECT_EQ(std::nullopt, ResourceBytes(nullptr, name, type)) << name << " of " << type;
}

#if !QX_WINDOWS

TEST(Registration, ReplacesAnEarlierOneAndCopies)
{
    std::string text = "first";
    host::RegisterString(nullptr, 40, text);
    text = "other";
    EXPECT_EQ("first", ResourceString(nullptr, 40));
    host::RegisterString(nullptr, 40, "second");
    EXPECT_EQ("second", ResourceString(nullptr, 40));
    host::RegisterString(nullptr, 40, "");
    EXPECT_EQ(std::nullopt, ResourceString(nullptr, 40));
}

TEST(Registration, IsPerModule)
{
    const HINSTANCE other = host::ModuleOf(reinterpret_cast<const void*>(&std::puts));
    ASSERT_NE(nullptr, other);
    host::RegisterString(other, 41, "theirs");
    EXPECT_EQ("theirs", ResourceString(other, 41));
    EXPECT_EQ(std::nullopt, ResourceString(nullptr, 41));
}

TEST(Registration, KeepsBytesWhereTheyAre)
{
    host::RegisterResource(nullptr, "stay", "BIN", "bytes");
    const auto before = ResourceBytes(nullptr, "stay", "BIN");
    for (int i = 0; i < 1000; ++i)
        host::RegisterResource(nullptr, std::to_string(i).c_str(), "BIN", "x");
    EXPECT_EQ("bytes", before);
    EXPECT_EQ(before->data(), ResourceBytes(nullptr, "STAY", "bin")->data());
}

#endif

}  // namespace
}  // namespace qx::test
