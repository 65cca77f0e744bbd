#include "ui/button_panel.h"

#include <gtest/gtest.h>
#include <string>

using namespace qx;

namespace {

TEST(ButtonArea, ContainsAllItsEdges)
{
    const ButtonArea area{10, 20, 30, 40};
    struct {
        int x, y;
        bool within;
    } const cases[] = {
        {10, 20, true},  {40, 60, true},  {25, 40, true},  {9, 20, false},
        {41, 60, false}, {40, 61, false}, {10, 19, false}, {INT32_MIN, INT32_MAX, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.within, Contains(area, c.x, c.y)) << c.x << " " << c.y;
    EXPECT_TRUE(Contains({5, 5, 0, 0}, 5, 5));
    EXPECT_FALSE(Contains({5, 5, -1, -1}, 5, 5));
    EXPECT_TRUE(Contains({INT32_MAX, INT32_MIN, INT32_MAX, INT32_MAX}, INT32_MAX, INT32_MIN));
    EXPECT_FALSE(Contains({INT32_MAX, 0, INT32_MAX, 9}, INT32_MIN, 0));
}

TEST(PanelSize, ReachesToTheLastEdges)
{
    SIZE size{};
    for (const ButtonArea& area : {ButtonArea{10, 20, 30, 40}, {0, 0, 35, 90}, {-50, -50, 20, 20}})
        Enclose(size, area);
    EXPECT_EQ(40, size.cx);
    EXPECT_EQ(90, size.cy);
    Enclose(size, {INT32_MAX, INT32_MIN, INT32_MAX, INT32_MIN});
    EXPECT_EQ(INT32_MAX, size.cx);
    EXPECT_EQ(90, size.cy);
}

TEST(PanelPlace, IsTheMiddleCutToTheRectangle)
{
    struct {
        SIZE size;
        RECT within, place;
    } const cases[] = {
        {{100, 50}, {0, 0, 400, 300}, {150, 125, 250, 175}},
        {{101, 51}, {0, 0, 401, 301}, {150, 125, 251, 176}},
        {{100, 50}, {10, 20, 410, 320}, {160, 145, 260, 195}},
        {{500, 50}, {10, 20, 410, 320}, {10, 145, 410, 195}},
        {{3, 3}, {0, 0, 2, 2}, {0, 0, 2, 2}},
        {{0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}},
        {{INT32_MAX, INT32_MAX}, {-5, -5, 5, 5}, {-5, -5, 5, 5}},
    };
    for (const auto& c : cases) {
        const RECT place = Centred(c.size, c.within);
        EXPECT_TRUE(place.left == c.place.left && place.top == c.place.top &&
                    place.right == c.place.right && place.bottom == c.place.bottom)
            << c.size.cx << ": " << place.left << " " << place.top << " " << place.right << " "
            << place.bottom;
    }
}

// ---- The mouse

// Two buttons, A and B; the mouse is over one of them or, as ' ', over none.
class Mouse {
  public:
    // Each step: what happens ("move", "hold" for a move with the button held, "down", "up",
    // "leave") and over which button. The result: what becomes of which, "A!" for its action.
    std::string Do(const std::string& what, char over = ' ')
    {
        char* under = over == 'A' ? &m_a : over == 'B' ? &m_b : nullptr;
        if (what == "down")
            return Text(OnMouseDown(under));
        if (what == "up")
            return Text(OnMouseUp(m_tracked, under));
        if (what == "leave")
            return Text(OnMouseLeave(m_tracked));
        return Text(OnMouseMove(m_tracked, under, what == "hold"));
    }

  private:
    static std::string Text(const ButtonSteps<char>& steps)
    {
        static const char* const kStates[] = {"standard", "pushed", "rollover"};
        std::string text;
        for (const auto& step : steps) {
            text += text.empty() ? "" : " ";
            text += *step.button;
            text += step.what == ButtonStep<char>::What::Go
                        ? std::string("!")
                        : std::string(":") + kStates[static_cast<int>(step.state)];
        }
        return text;
    }

    char m_a = 'A', m_b = 'B';
    char* m_tracked = nullptr;
};

struct Move {
    const char* what;
    char over;
    const char* result;
};

void Expect(const char* story, const std::vector<Move>& moves)
{
    Mouse mouse;
    int number = 0;
    for (const Move& move : moves)
        EXPECT_EQ(move.result, mouse.Do(move.what, move.over))
            << story << ", step " << ++number << ": " << move.what << " " << move.over;
}

TEST(PanelMouse, HoverFollowsTheMouse)
{
    Expect("hover", {{"move", ' ', ""},
                     {"move", 'A', "A:rollover"},
                     {"move", 'A', ""},
                     {"move", 'B', "A:standard B:rollover"},
                     {"move", ' ', "B:standard"},
                     {"move", ' ', ""},
                     {"move", 'B', "B:rollover"},
                     {"leave", ' ', "B:standard"},
                     {"leave", ' ', ""}});
}

TEST(PanelMouse, PressAndReleaseActs)
{
    Expect("press", {{"move", 'A', "A:rollover"},
                     {"down", 'A', "A:pushed"},
                     {"up", 'A', "A! A:standard"},
                     {"move", 'A', "A:rollover"},
                     {"down", ' ', ""},
                     {"up", ' ', ""}});
}

TEST(PanelMouse, ReleaseElsewhereDoesNothing)
{
    Expect("to another", {{"move", 'A', "A:rollover"},
                          {"down", 'A', "A:pushed"},
                          {"hold", 'B', "A:standard"},
                          {"up", 'B', ""},
                          {"move", 'B', "B:rollover"}});
    Expect("away", {{"move", 'A', "A:rollover"},
                    {"down", 'A', "A:pushed"},
                    {"hold", ' ', "A:standard"},
                    {"up", ' ', ""},
                    {"up", 'A', ""}});
    Expect("from elsewhere", {{"down", ' ', ""}, {"hold", 'A', ""}, {"up", 'A', ""}});
}

TEST(PanelMouse, HeldButtonIsPushedAgainOnReturn)
{
    Expect("return", {{"move", 'A', "A:rollover"},
                      {"down", 'A', "A:pushed"},
                      {"hold", ' ', "A:standard"},
                      {"hold", 'B', "A:standard"},
                      {"hold", 'A', "A:pushed"},
                      {"up", 'A', "A! A:standard"}});
}

TEST(PanelMouse, PressWithoutHoverActsNotAtAll)
{
    Expect("not tracked", {{"down", 'A', "A:pushed"}, {"up", 'A', ""}});
    Expect("left while held", {{"move", 'A', "A:rollover"},
                               {"down", 'A', "A:pushed"},
                               {"leave", ' ', "A:standard"},
                               {"up", 'A', ""}});
}

}  // namespace
