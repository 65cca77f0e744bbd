#include "ui/panes.h"

#include <gmock/gmock.h>
#include <map>

using namespace qx;
using testing::ElementsAre;

namespace {

HWND Window(int number)
{
    return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(number));
}

std::string Text(const RECT& r)
{
    return std::to_string(r.left) + " " + std::to_string(r.top) + " " + std::to_string(r.right) +
           " " + std::to_string(r.bottom);
}

struct FakeWindows final : PaneWindows {
    MINMAXINFO Limits(HWND window) override { return limits[window]; }
    SIZE Size(HWND window) override { return sizes[window]; }

    std::map<HWND, MINMAXINFO> limits;
    std::map<HWND, SIZE> sizes;
};

constexpr RECT kClient{0, 0, 400, 300};
constexpr DWORD kLeft = kPaneLeft | kPaneAcross, kRight = kPaneRight | kPaneAcross;
constexpr DWORD kTop = kPaneTop | kPaneAlong, kBottom = kPaneBottom | kPaneAlong;

// A host with fake windows, numbered from 1 on.
struct Host {
    Host& Add(int window, int size, DWORD flags, POINT minimum = {0, 0})
    {
        windows.limits[Window(window)].ptMinTrackSize = minimum;
        AddPane(first, kClient, {window ? Window(window) : NoWindow(), flags, {}, size, {}});
        return *this;
    }
    // "window: rectangle" of each window that is moved, in order.
    std::vector<std::string> LayOut(const RECT& client = kClient)
    {
        std::vector<std::string> moved;
        for (const PaneMove& move : qx::LayOut(first.get(), client, Own()))
            moved.push_back(std::to_string(reinterpret_cast<std::uintptr_t>(move.window)) + ": " +
                            Text(move.area));
        return moved;
    }
    std::vector<MINMAXINFO> Own() { return OwnLimits(PanesOf(first.get()), windows); }
    MINMAXINFO Chain() { return ChainLimits(PanesOf(first.get()), Own()).front(); }
    int SizeOf(int window) const { return FindPane(first.get(), Window(window))->size; }
    // Window numbers and, for panes without one, their flags.
    std::vector<std::uint64_t> Panes() const
    {
        std::vector<std::uint64_t> panes;
        for (const PaneData& pane : PanesOf(first.get()))
            panes.push_back(pane.window == NoWindow()
                                ? pane.flags
                                : reinterpret_cast<std::uintptr_t>(pane.window));
        return panes;
    }

    std::unique_ptr<Pane> first;
    FakeWindows windows;
};

TEST(Panes, TakeStripsOfWhatTheEarlierOnesLeft)
{
    Host host;
    host.Add(1, 30, kTop).Add(2, 100, kLeft).Add(3, 50, kRight).Add(4, 20, kBottom);
    host.Add(5, 10, kBottom | kPaneFill | kPaneEdge);
    EXPECT_THAT(host.LayOut(),
                ElementsAre("5: 102 2 348 278", "4: 100 280 350 300", "3: 350 30 400 300",
                            "2: 0 30 100 300", "1: 0 0 400 30"));
}

// As built, a filling pane is as high as its area's bottom says; here 30 more than there is.
TEST(Panes, FillMakesTheSizeTheBottomOfTheArea)
{
    Host host;
    host.Add(1, 30, kTop).Add(2, 10, kBottom | kPaneFill);
    EXPECT_THAT(host.LayOut(), ElementsAre("2: 0 0 400 300", "1: 0 0 400 30"));
    Host right;
    right.Add(1, 10, kRight | kPaneFill);
    EXPECT_THAT(right.LayOut(), ElementsAre("1: 100 0 400 300"));
    Host notLast;
    notLast.Add(1, 10, kTop | kPaneFill).Add(2, 20, kTop);
    EXPECT_THAT(notLast.LayOut(), ElementsAre("2: 0 10 400 30", "1: 0 0 400 10"));
}

TEST(Panes, SideIsLookedForInTheOrderRightLeftTopBottom)
{
    const std::pair<DWORD, DWORD> cases[] = {
        {0x07800000, kPaneRight},  {0x05800000, kPaneLeft}, {0x01800000, kPaneTop},
        {0x00800000, kPaneBottom}, {0, kPaneBottom},        {0xF8700000, kPaneBottom},
    };
    for (const auto& [flags, side] : cases)
        EXPECT_EQ(side, SideOf(flags)) << std::hex << flags;
}

TEST(Panes, SizablePaneGetsASplitterOfItsKind)
{
    const std::pair<DWORD, DWORD> cases[] = {
        {kBottom, 0x80900000},     {kPaneLeft, 0x80900000},
        {kPaneTop, 0x81100000},    {kTop, 0x81100000},
        {kRight, 0x42100000},      {kLeft, 0x44100000},
        {kPaneAcross, 0x44100000}, {kPaneAcross | kPaneTop, 0x44100000},
    };
    for (const auto& [flags, splitter] : cases) {
        Host host;
        host.Add(1, 50, flags | kPaneSizable).Add(2, 50, flags);
        EXPECT_THAT(host.Panes(), ElementsAre(1, splitter, 2)) << std::hex << flags;
        EXPECT_EQ(6, host.first->next->size);
        EXPECT_TRUE(HasSplitter(host.first.get()));
    }
    Host plain;
    EXPECT_FALSE(HasSplitter(plain.Add(1, 50, kLeft).first.get()));
}

TEST(Panes, AreaOfANewPaneIsWhatTheChainLeaves)
{
    Host host;
    host.Add(1, 50, kTop | kPaneSizable).Add(2, 100, kRight).Add(3, 0, kBottom);
    EXPECT_EQ("0 0 400 300", Text(host.first->area));
    EXPECT_EQ("0 50 400 300", Text(host.first->next->area));
    EXPECT_EQ("0 56 400 300", Text(FindPane(host.first.get(), Window(2))->area));
    EXPECT_EQ("0 56 300 300", Text(FindPane(host.first.get(), Window(3))->area));
}

// ---- Removal

TEST(Panes, RemovalTakesTheSplitterAlong)
{
    Host host;
    host.Add(1, 9, kTop | kPaneSizable).Add(2, 9, kTop | kPaneSizable).Add(3, 9, kTop).Add(4, 9, 0);
    EXPECT_TRUE(RemovePane(host.first.get(), Window(2)));
    EXPECT_THAT(host.Panes(), ElementsAre(1, 0x81100000, 3, 4));
    EXPECT_TRUE(RemovePane(host.first.get(), Window(4)));
    EXPECT_FALSE(RemovePane(host.first.get(), Window(4)));
    EXPECT_THAT(host.Panes(), ElementsAre(1, 0x81100000, 3));
}

TEST(Panes, FirstPaneIsNeverRemoved)
{
    Host host;
    host.Add(1, 9, kTop | kPaneSizable).Add(2, 9, kTop);
    EXPECT_FALSE(RemovePane(host.first.get(), Window(1)));
    EXPECT_FALSE(RemovePane(nullptr, Window(1)));
    EXPECT_EQ(3U, host.Panes().size());
}

// ---- Limits

TEST(PaneLimits, OfOnePaneComeFromItsKind)
{
    MINMAXINFO stored{};
    stored.ptMinTrackSize = {11, 12};
    stored.ptMaxTrackSize = {21, 22};
    MINMAXINFO told{};
    told.ptMinTrackSize = {31, 32};
    told.ptMaxTrackSize = {41, 42};
    FakeWindows windows;
    windows.limits[Window(1)] = told;
    windows.sizes[Window(1)] = {70, 80};
    struct {
        HWND window;
        DWORD flags;
        std::array<int, 4> limits;  // least width and height, greatest width and height
    } const cases[] = {
        {NoWindow(), kPaneSplitter | kPaneAcross, {6, 0, 6, 0}},
        {NoWindow(), kPaneSplitter | kPaneAlong, {0, 6, 0, 6}},
        {NoWindow(), kPaneSplitter, {0, 0, 0, 0}},
        {NoWindow(), kPaneAcross, {11, 12, 21, 22}},
        {NoWindow(), kPaneAcross | kPaneFixed, {11, 12, 21, 22}},
        {Window(1), kPaneAlong, {31, 32, 41, 42}},
        {Window(1), kPaneAlong | kPaneFixed, {0, 80, 0, 80}},
        {Window(1), kPaneAcross | kPaneFixed, {70, 0, 70, 0}},
        {Window(1), kPaneFixed, {0, 0, 0, 0}},
        {Window(1), kPaneHeightLocked, {31, 55, 41, 55}},
        {Window(1), kPaneWidthLocked, {55, 32, 55, 42}},
        {Window(1),
         kPaneAcross | kPaneFixed | kPaneWidthLocked | kPaneHeightLocked,
         {55, 55, 55, 55}},
        {NoWindow(), kPaneHeightLocked, {11, 55, 21, 55}},
    };
    for (const auto& c : cases) {
        const MINMAXINFO own = OwnLimits({{c.window, c.flags, {}, 55, stored}}, windows).front();
        EXPECT_THAT(c.limits, ElementsAre(own.ptMinTrackSize.x, own.ptMinTrackSize.y,
                                          own.ptMaxTrackSize.x, own.ptMaxTrackSize.y))
            << std::hex << c.flags;
    }
}

TEST(PaneLimits, OfTheChainAddUpAcrossAndAlong)
{
    Host host;
    host.Add(1, 10, kLeft, {100, 50}).Add(2, 10, kTop, {70, 20}).Add(3, 10, kBottom, {30, 90});
    EXPECT_EQ(170, host.Chain().ptMinTrackSize.x);
    EXPECT_EQ(110, host.Chain().ptMinTrackSize.y);
    EXPECT_EQ(0, host.Chain().ptMaxTrackSize.x);
    for (int i = 1; i <= 3; ++i)
        host.windows.limits[Window(i)].ptMaxTrackSize = {200, i == 2 ? 0 : 100};
    EXPECT_EQ(600, host.Chain().ptMaxTrackSize.x);
    EXPECT_EQ(0, host.Chain().ptMaxTrackSize.y);
    EXPECT_EQ(0, ChainLimits({}, {}).front().ptMinTrackSize.x);
}

// ---- Layout pass

TEST(PaneLayout, SizesAreCorrectedByMinimumSizes)
{
    struct {
        const char* what;
        DWORD flags;
        int size;
        POINT own, rest;  // minimum sizes
        int corrected;
    } const cases[] = {
        {"left, rest needs more", kLeft, 150, {0, 0}, {300, 0}, 100},
        {"left, own needs more", kLeft, 50, {80, 0}, {300, 0}, 80},
        {"left, both need more: own wins", kLeft, 150, {0, 0}, {250, 0}, 150},
        {"left, edge counts for the own one", kLeft | kPaneEdge, 82, {80, 0}, {0, 0}, 80},
        {"right, rest needs more", kRight, 150, {0, 0}, {300, 0}, 100},
        {"top, rest needs more", kTop, 150, {0, 0}, {0, 200}, 100},
        {"bottom, own needs more", kBottom, 50, {0, 80}, {0, 200}, 80},
        {"negative size", kTop, -50, {0, 80}, {0, 200}, 80},
        {"larger than the host", kRight, 1000, {0, 0}, {300, 0}, 100},
    };
    for (const auto& c : cases) {
        Host host;
        host.Add(1, c.size, c.flags, c.own).Add(2, 10, c.flags & ~kPaneEdge, c.rest);
        host.LayOut();
        EXPECT_EQ(c.corrected, host.SizeOf(1)) << c.what;
    }
}

TEST(PaneLayout, MaximumSizesAreNotApplied)
{
    Host host;
    host.Add(1, 200, kLeft);
    host.windows.limits[Window(1)].ptMaxTrackSize = {50, 50};
    EXPECT_THAT(host.LayOut(), ElementsAre("1: 0 0 200 300"));
}

TEST(PaneLayout, FixedPanesKeepTheirWindowsSizeExceptAtTheLeft)
{
    const std::pair<DWORD, int> cases[] = {
        {kRight, 70}, {kTop, 40}, {kBottom, 40}, {kLeft, 400 - 120}};
    for (const auto& [side, size] : cases) {
        Host host;
        host.Add(1, 70, side | kPaneFixed).Add(2, 10, side, {120, 0});
        host.windows.sizes[Window(1)] = {70, 40};
        host.LayOut();
        EXPECT_EQ(size, host.SizeOf(1)) << std::hex << side;
    }
}

TEST(PaneLayout, PanesWithoutRoomStayWithAllAfterThem)
{
    struct {
        DWORD flags;
        POINT own, rest;
        bool fits;
    } const cases[] = {
        {kLeft, {200, 0}, {200, 0}, true},      {kLeft, {201, 0}, {200, 0}, false},
        {kRight, {0, 300}, {0, 300}, true},     {kRight, {0, 301}, {0, 0}, false},
        {kRight, {0, 0}, {0, 301}, false},      {kTop, {0, 150}, {0, 150}, true},
        {kTop, {0, 150}, {0, 151}, false},      {kBottom, {400, 0}, {400, 0}, true},
        {kBottom, {401, 0}, {0, 0}, false},     {kBottom, {0, 0}, {401, 0}, false},
        {kLeft, {INT32_MAX, 0}, {1, 0}, false},
    };
    for (const auto& c : cases) {
        Host host;
        host.Add(1, 10, c.flags, c.own).Add(2, 10, c.flags, c.rest);
        EXPECT_EQ(c.fits ? 2U : 0U, host.LayOut().size())
            << std::hex << c.flags << std::dec << " " << c.own.x << " " << c.rest.y;
        if (!c.fits) {
            EXPECT_EQ(10, host.SizeOf(1));
        }
    }
    Host second;
    second.Add(1, 300, kTop | kPaneFixed).Add(2, 50, kBottom).Add(3, 50, kBottom);
    second.windows.sizes[Window(1)] = {400, 300};
    EXPECT_THAT(second.LayOut(), ElementsAre("3: 0 -50 0 0", "2: 0 -50 0 0", "1: 0 0 400 300"));
}

TEST(PaneLayout, AnySizesAreTaken)
{
    for (const int size : {INT32_MIN, -1, 0, INT32_MAX}) {
        for (const DWORD flags : {kLeft, kRight, kTop, kBottom}) {
            Host host;
            host.Add(1, size, flags | kPaneSizable | kPaneEdge, {size, size});
            host.Add(2, size, flags | kPaneFill, {size, size});
            host.LayOut({INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX});
            host.LayOut();
            for (const PaneData& pane : PanesOf(host.first.get()))
                Grip(pane);
            DraggedSize(*host.first, size);
        }
    }
}

// ---- Mouse

TEST(PaneHitTest, OnASplitterIsThePaneBeforeIt)
{
    Host host;
    host.Add(1, 30, kTop | kPaneSizable).Add(2, 100, kLeft | kPaneSizable).Add(3, 300, kBottom);
    host.LayOut();
    const auto hit = [&](int x, int y) { return HitTest(host.first.get(), {x, y}); };
    const Pane* top = host.first.get();
    const Pane* left = FindPane(host.first.get(), Window(2));
    EXPECT_EQ(nullptr, hit(5, 29));
    EXPECT_EQ(top, hit(5, 30));
    EXPECT_EQ(top, hit(5, 35));
    EXPECT_EQ(top->next.get(), hit(5, 36)) << "in a pane: what stands before it";
    EXPECT_EQ(left, hit(100, 200));
    EXPECT_EQ(left, hit(105, 200));
    EXPECT_EQ(left->next.get(), hit(106, 200));
    EXPECT_EQ(nullptr, hit(400, 200));
    EXPECT_EQ(nullptr, HitTest(nullptr, {0, 0}));
}

TEST(PaneDrag, SizeReachesFromThePanesSideToTheMouse)
{
    const std::pair<DWORD, int> cases[] = {{kLeft, 90}, {kRight, 270}, {kTop, 80}, {kBottom, 180}};
    for (const auto& [flags, size] : cases)
        EXPECT_EQ(size, DraggedSize({Window(1), flags, {10, 20, 370, 280}, 0, {}}, 100))
            << std::hex << flags;
}

TEST(PaneGrip, HasFourLinesInTheMiddleOfTheBar)
{
    const auto lines = [](const PaneData& splitter) {
        std::vector<std::string> texts;
        for (const GripLine& line : Grip(splitter))
            texts.push_back(Text({line.from.x, line.from.y, line.to.x, line.to.y}) +
                            (line.white ? " white" : " grey"));
        return texts;
    };
    EXPECT_THAT(lines({NoWindow(), kLeft | kPaneSplitter, {100, 20, 400, 121}, 6, {}}),
                ElementsAre("101 54 101 86 white", "102 54 102 86 grey", "103 54 103 86 white",
                            "104 54 104 86 grey"));
    EXPECT_THAT(lines({NoWindow(), kBottom | kPaneSplitter, {100, 20, 201, 120}, 6, {}}),
                ElementsAre("134 115 166 115 white", "134 116 166 116 grey",
                            "134 117 166 117 white", "134 118 166 118 grey"));
}

TEST(NearestSide, IsTheOneThatIsNearerThanAllOthers)
{
    struct {
        RECT rectangle;
        DWORD side;
    } const cases[] = {
        {{190, 140, 210, 160}, kPaneBottom},  // the middle
        {{10, 140, 30, 160}, kPaneLeft},
        {{380, 140, 390, 160}, kPaneRight},
        {{190, 0, 210, 20}, kPaneTop},
        {{190, 290, 210, 300}, kPaneBottom},
        {{0, 0, 20, 20}, kPaneBottom},     // as near to the left as to the top
        {{380, 0, 400, 20}, kPaneBottom},  // right and top
        {{0, 0, 21, 25}, kPaneLeft},       // integer halves: 10 and 12
        {{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}, kPaneBottom},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.side, NearestSide(c.rectangle, kClient)) << Text(c.rectangle);
}

TEST(Subtract, LeavesARectangleOrAll)
{
    struct {
        RECT cut;
        const char* rest;
    } const cases[] = {
        {{0, 0, 400, 50}, "0 50 400 300"},     {{0, 250, 400, 300}, "0 0 400 250"},
        {{-9, -9, 100, 309}, "100 0 400 300"}, {{300, 0, 400, 300}, "0 0 300 300"},
        {{-9, -9, 999, 999}, "0 0 0 0"},       {{0, 0, 399, 50}, "0 0 400 300"},
        {{0, 100, 400, 200}, "0 0 400 300"},   {{100, 0, 0, 300}, "0 0 400 300"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.rest, Text(Subtract(kClient, c.cut))) << Text(c.cut);
    EXPECT_EQ("0 0 0 0", Text(Subtract({50, 0, 50, 10}, {0, 0, 1, 1})));
}

}  // namespace
