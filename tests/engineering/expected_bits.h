// The results of the engineering calculations, to the last bit: the same for every build. Computed
// by another implementation of IEEE doubles (Python's) from the tables as printed; not to be made
// anew from this library's results.
#pragma once

#include <cstdint>

namespace qx::test {

// The bits of the result for 14.7, and a digest of those for 1000 values of all magnitudes (see
// RandomDouble and Digest).
struct Expected {
    std::uint64_t of14_7, digest;
};

// Row: from, column: to.
inline constexpr Expected kPressures[8][8] = {
    {{0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x405958469ee5846a, 0xb67cf7d4268ce184},
     {0x3ff0387f1e0387f2, 0x7e99553e5889ce5d},
     {0x4079798811b1d92b, 0xf384ac32c084c271},
     {0x403dedf3519bd407, 0x23238cfc90b91e23},
     {0x40c438773471f793, 0xdc47c0e1ae616cdf},
     {0x4087c1ac5593b04c, 0x1a8fb3b9e7f014c8},
     {0x40f8c034f72c234f, 0x20c35604ee2fb5bb}},
    {{0x40010d4fdf3b645a, 0x6982cfd98ef1871f},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x3fc2d0e560418937, 0x3b10a9c762fdc119},
     {0x404d8eadd744ca39, 0x5ebe7c7f49470def},
     {0x40115cee6ed54bab, 0xeb9a22e1ad87c605},
     {0x4097760d2fab66ea, 0x3d2708086b3841b0},
     {0x405b90541cbf681f, 0x87c7a86c53fadb30},
     {0x40ccb60000000000, 0x0a4fdde39227d395}},
    {{0x406aa4cccccccccc, 0x1340a23d85e18f37},
     {0x4096f80000000000, 0x776cf0a511379a79},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x40b71777d02dbdfd, 0x241da696e63ba220},
     {0x407b21348d2d463b, 0x65dfbff3eb4e8ef6},
     {0x4102543a4d3de867, 0x625601e2a96bc515},
     {0x40c588c1b6758958, 0x340b8323700e6d6c},
     {0x41366e3000000000, 0xf97ab25262e61277}},
    {{0x3fe0f70d3b764ebb, 0xc438e0f8aa99624e},
     {0x400d3e55d960bb8b, 0x06ece3be0add7c60},
     {0x3fa2b7412ef63a96, 0x8956dfc8ec6cc3a3},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x3ff1454521f67ad8, 0x8eb0bb6b47650ea1},
     {0x407756147ae147ad, 0x1f11ec853c2ea4c0},
     {0x403b6ac425ea7c9d, 0x9c95265d2e7a5303},
     {0x40ac8edfd6487726, 0xdb22c8b1b9173e68}},
    {{0x401ce13f63676add, 0xe342c4365867732e},
     {0x4048e40e271d2205, 0xe1d01768e8fc5e3b},
     {0x3fdfdc3b13587d77, 0x12519d0970ceeaaf},
     {0x40690628197d35bd, 0xe965be22299c623b},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x40b3dce3076e95db, 0x69d49fe97852d5c8},
     {0x407756147ae147ad, 0x1f11ec853c2ea4c0},
     {0x40e84eb5d2327339, 0x2893b3849c94b592}},
    {{0x3f955f8fa9a730cc, 0x60921bb0f2804f36},
     {0x3fc26bcd426137a6, 0x8e5cacb36c2f6000},
     {0x3f579439ee90eb12, 0x3a3fa77a0a40f5c8},
     {0x3fe2850a142850a1, 0x7011bc55a38979f3},
     {0x3fa5c21a9fb3808f, 0x3bcc2876850b724b},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x3ff1454521f67ad8, 0x8eb0bb6b47650ea1},
     {0x4061fd4672d2f058, 0xbbb67cd3d80a9537}},
    {{0x3fd23129f204ac23, 0x4cb85f470be9999b},
     {0x3fff5bc9436b4109, 0x10118cc89f6162f0},
     {0x3f9411c87d11714d, 0xca04fe656a2c4070},
     {0x401f86bf9f1ab89e, 0x005610e8ff42c025},
     {0x3fe2850a142850a1, 0x7011bc55a38979f3},
     {0x40690628197d35bd, 0xe965be22299c623b},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x409e9fa28bd6bd83, 0x6a3098f033f75963}},
    {{0x3f6176145953586c, 0x84b04acb2db35782},
     {0x3f8e1b089a027525, 0x99695875efa197de},
     {0x3f2344806290eed0, 0xf2b6d448d52870e6},
     {0x3fae4447845f0453, 0x621fdebf7e466b5d},
     {0x3f71c79c17619529, 0xedb8d32e0603f59b},
     {0x3ff806325dde9ea2, 0x1331e49d2199f2cf},
     {0x3fbc39ae31eae997, 0x453b206d1079f62a},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e}},
};

inline constexpr Expected kTemperatures[4][4] = {
    {{0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x407da5eb851eb852, 0x29958a8d0ff3c89a},
     {0xc02338e38e38e38f, 0xb50e7afb2fced556},
     {0x4070789f49f49f4a, 0xfe0851ead12c4f3f}},
    {{0xc07bcf851eb851ec, 0x62fe0182911c91d4},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0xc0708fbbbbbbbbbc, 0x50698f131c280581},
     {0x4020555555555540, 0xa07cf8448927f27a}},
    {{0x404d3ae147ae147b, 0xefd5e1a8cc5e575e},
     {0x4080310a3d70a3d7, 0xbcbbca62e1f80ec6},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e},
     {0x4071fd9999999999, 0xc5763a5a9ef1f68a}},
    {{0xc07b135c28f5c28f, 0xc44c42b48aabf81e},
     {0x403a75c28f5c2900, 0x39293e56479f4a4c},
     {0xc070273333333333, 0xed9c5ea195e7bea1},
     {0x402d666666666666, 0xf32e6a6d1dc9d12e}},
};

inline constexpr Expected kSizes[2][2] = {
    {{0x402d666666666666, 0xf32e6a6d1dc9d12e}, {0x407756147ae147ad, 0x1f11ec853c2ea4c0}},
    {{0x3fe2850a142850a1, 0x7011bc55a38979f3}, {0x402d666666666666, 0xf32e6a6d1dc9d12e}},
};

inline constexpr Expected kLengths[2][2] = {
    {{0x402d666666666666, 0xf32e6a6d1dc9d12e}, {0x4011ed44aed44aed, 0x36cd555d72a7fb11}},
    {{0x40481ba5e353f7ce, 0x2417fbef4334c896}, {0x402d666666666666, 0xf32e6a6d1dc9d12e}},
};

// Of the curve in the test.
inline constexpr Expected kCurve = {0x4020baf0855baf09, 0x2f6628d01f5b1a20};
// The texts of QXFormatTime with seconds, character by character.
inline constexpr std::uint64_t kTimeTexts = 0x7eda5c450ad797e8;
// The hours of "h:m:s" with numbers below 1000.
inline constexpr std::uint64_t kTimes = 0xaf3f05f3e1b9b644;
// The fields of CAtmPressure for values in all units in turn.
inline constexpr std::uint64_t kAtmospheres = 0x078bd66d33e9553b;

}  // namespace qx::test
