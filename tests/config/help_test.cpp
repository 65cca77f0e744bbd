// Types of help, and what the help control is sent, without one.
#include "config/process.h"
#include "doubles/help_control_double.h"
#include "doubles/message_box_double.h"
#include "doubles/path_search_double.h"
#include "support/language_fixture.h"

#include <qxutility/config/help.h>

#include <gmock/gmock.h>

namespace qx::test {
namespace {

using testing::ElementsAre;

const HWND kOwner = reinterpret_cast<HWND>(0x1234);

const std::string kTable =
    "IDS\t09-01\t07-01\t12-01\t16-01\r\n"
    "L\tEnglish\tDeutsch\t\xE9\xE8\tIta?\r\n"
    "111\t%s %n%s%d no help\tkeine Hilfe\t\t\r\n"
    "40\tManual.chm\tHandbuch.chm\t\t\r\n";

class Help : public testing::Test {
  protected:
    Help()
    {
        static TableFile table(kTable);
        static CTableReader reader(table.Path().c_str(), '\t', nullptr, nullptr);
        Process().language.SetStringTable(&reader);
        Process().language.SetLanguage(kEnglish);
        m_search.programs["manual"] = "/app/Manual.CHM";
    }
    // What the control was sent since the last call.
    std::vector<std::string> Sent() { return std::exchange(m_control.sent, {}); }

    PathSearchDouble m_search;
    HelpControlDouble m_control;
};

}  // namespace

TEST_F(Help, NamesFilesByLanguage)
{
    TestLanguage german(kTable, kGerman);
    const LocalizedFilenameMaker maker(german.language);
    const struct {
        const char* name;
        DWORD lcid;
        const char* expected;
    } cases[] = {
        {"Manual.chm", kGerman, "Manual_Deutsch.chm"},
        {"Manual.chm", kEnglish, "Manual_English.chm"},
        {"Manual.chm", kFrench, "Manual_\xE9\xE8.chm"},
        {"a.b.chm", kGerman, "a.b_Deutsch.chm"},
        {"Manual", kGerman, "Manual_Deutsch"},
        {"v1.2/Manual", kGerman, "v1.2/Manual_Deutsch"},
        {"v1.2/.chm", kGerman, "v1.2/_Deutsch.chm"},
        {"", kGerman, "_Deutsch"},
        {"Manual.chm", 0x0413, "Manual_.chm"},  // a language without a name
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, maker.GetFilename(c.name, c.lcid)) << c.name;
    EXPECT_EQ("Manual_Deutsch.chm", maker.GetFilename("Manual.chm"));
    german.language.SetLanguage(kEnglish);
    EXPECT_EQ("Manual_English.chm", maker.GetFilename("Manual.chm"));
}

TEST_F(Help, TakesTheFileOfTheLanguageThenTheEnglishOneThenTheRegisteredOne)
{
    const TemporaryFolder folder;
    const auto touch = [&](const char* name) { return folder.Write(name, "x"); };
    TestLanguage spoken(kTable, kGerman);
    const LocalizedHelpFileFinder finder{LocalizedFilenameMaker(spoken.language)};
    const std::string plain = folder.Path("Manual.chm");
    EXPECT_EQ(plain, finder.Find(plain));
    std::filesystem::create_directory(folder.Path("Manual_Deutsch.chm"));
    EXPECT_EQ(plain, finder.Find(plain)) << "a folder is no file";
    const std::string english = touch("Manual_English.chm");
    EXPECT_EQ(english, finder.Find(plain));
    std::filesystem::remove(folder.Path("Manual_Deutsch.chm"));
    const std::string german = touch("Manual_Deutsch.chm");
    EXPECT_EQ(german, finder.Find(plain));
    spoken.language.SetLanguage(0x0410);
    EXPECT_EQ(english, finder.Find(plain));
    EXPECT_EQ(std::string(5000, 'x'), finder.Find(std::string(5000, 'x')));
    EXPECT_EQ("", LocalizedHelpFileFinder(finder).HelpFileFinder::Find(""));
}

// A finder that says what it was asked for, and meanwhile registers types.
struct Registering : HelpFileFinder {
    explicit Registering(HTML_HELP* types) : help(types) {}
    std::string Find(std::string name) const override
    {
        for (int i = 0; help && i < 100; ++i)
            help->AddType(i < 99 ? std::to_string(i).c_str() : "Main", "later", "later");
        return name + "!";
    }
    HelpFileFinder* Clone() const override { return new Registering(*this); }
    HTML_HELP* help;
};

TEST_F(Help, FindersAreCopiedAndMayRegisterTypes)
{
    HTML_HELP help, assigned;
    help.AddType("Main", "manual", std::make_unique<Registering>(nullptr).get(), "w");
    assigned = HTML_HELP(help);
    help.AddType("Main", "first", std::make_unique<Registering>(&help).get(), "w");
    for (HTML_HELP* const object : {&assigned, &help, &help})
        object->Open("Main", 1);
    EXPECT_THAT(Sent(), ElementsAre("context 1 /app/Manual.CHM!>w", "context 1 first!>w",
                                    "context 1 later>later"));
}

TEST_F(Help, TypesKnowTheirNameAndFile)
{
    HTML_HELP::HELPTYPES type;
    EXPECT_TRUE(type.empty());
    EXPECT_EQ("", type.GetFile());
    type.Add("Main", "manual", nullptr, "w");
    EXPECT_THAT(m_search.asked, ElementsAre("manual|.CHM"));
    EXPECT_EQ("/app/Manual.CHM", type.GetFile());
    EXPECT_STREQ("w", type.GetWindow());
    EXPECT_TRUE(type.compare("mAIN"));
    EXPECT_FALSE(type.compare("Mai"));
    for (const std::size_t length : {259u, 260u}) {
        m_search.programs["far"] = std::string(length, 'f');
        type.Add(nullptr, "far", nullptr, nullptr);
        EXPECT_EQ(length < 260 ? m_search.programs["far"] : "far", type.GetFile()) << length;
    }
    EXPECT_TRUE(type.empty());
    EXPECT_FALSE(type.compare(nullptr));
}

TEST_F(Help, SendsWhatEachRequestNeeds)
{
    HTML_HELP help;
    help.SetWindow(kOwner);
    help.AddType("Main", "manual", "main");
    Process().language.SetLanguage(kGerman);
    help.AddType("Texts", HINSTANCE{nullptr}, 40, "w");
    EXPECT_EQ(m_control.window, help.Open("main", 4'000'000'000));
    EXPECT_EQ(m_control.window, help.Search("main", "pump %s"));
    EXPECT_EQ(m_control.window, help.Contents("main"));
    EXPECT_THAT(Sent(), ElementsAre("context 4000000000 /app/Manual.CHM>main",
                                    "topic /app/Manual.CHM", "search 'pump %s' /app/Manual.CHM",
                                    "topic /app/Manual.CHM", "contents /app/Manual.CHM"));
    EXPECT_THAT(m_control.owners, testing::Each(kOwner));
    help.Open("Texts", 1);
    EXPECT_EQ("context 1 Handbuch.chm>w", Sent().back());
}

TEST_F(Help, OpensTheFirstTypeForAnUnknownOneAndTheLastFileOfAType)
{
    HTML_HELP help;
    for (const char* name : {"Main", "Dialog", "mAIN"})
        help.AddType(name, name, name);
    for (const char* name : {static_cast<const char*>(nullptr), "", "no such type"}) {
        help.Open(name, 1);
        EXPECT_THAT(Sent(), ElementsAre("context 1 mAIN>mAIN"));
    }
}

TEST_F(Help, ClosesTheWindowsOfAnotherTypeAndAllWithTheLastObject)
{
    auto last = std::make_unique<HTML_HELP>();
    {
        HTML_HELP help(*last);
        help.AddType("Main", "f", "w");
        const std::string thirty(30, 'n');
        const std::pair<std::string, bool> cases[] = {
            {thirty + "1", false}, {thirty + "2", false}, {thirty, false}, {"n", true},
            {"n", false},          {"N", true},           {"", true},      {"Main", false}};
        for (const auto& [type, closes] : cases) {
            help.Open(type.c_str(), 1);
            const std::vector<std::string> sent = Sent();
            EXPECT_EQ(closes ? 2u : 1u, sent.size()) << type;
            EXPECT_EQ(closes, sent.front() == "close all (none)") << type;
        }
    }
    EXPECT_THAT(Sent(), ElementsAre());
    last.reset();
    EXPECT_THAT(Sent(), ElementsAre("close all (none)"));
}

TEST_F(Help, TellsOfHelpThatCannotBeShownUnlessErrorsAreOff)
{
    m_control.window = nullptr;
    HTML_HELP help;
    help.SetWindow(kOwner);
    MessageBoxDouble boxes({IDOK, IDOK, IDOK});
    EXPECT_EQ(nullptr, help.Contents("Main")) << "nothing is to be shown, nothing to be told";
    EXPECT_EQ(nullptr, help.Open("Main", 1));
    EXPECT_THAT(Sent(), ElementsAre());
    help.AddType("Main", "f", "w");
    EXPECT_EQ(nullptr, help.Search("Main", nullptr));
    Process().language.SetLanguage(kGerman);
    EXPECT_EQ(nullptr, help.Contents("Main"));
    help.DisableErrors();
    EXPECT_EQ(nullptr, help.Open("Main", 1));
    ASSERT_EQ(3u, boxes.shown.size());
    EXPECT_EQ("Opening a context page %n%s%d no help", boxes.shown[0].text);
    EXPECT_EQ("Searching the file %n%s%d no help", boxes.shown[1].text);
    EXPECT_EQ("keine Hilfe", boxes.shown[2].text);
    EXPECT_EQ("Help", boxes.shown[0].caption);
    EXPECT_EQ(MB_ICONHAND, boxes.shown[0].style);
    EXPECT_EQ(kOwner, boxes.shown[0].owner);
}

}  // namespace qx::test
