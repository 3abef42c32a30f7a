#include "resources/pictures.h"

#include "resources/ids.h"
#include "resources/picture_text.h"

namespace pvw {

namespace {

constexpr std::size_t kSide = 16;
constexpr std::size_t kButtonHeight = 15;

constexpr auto kRefresh = Draw<kSide, kButtonHeight>({
    "................",
    "..........n.....",
    "......nnnnnn....",
    "....nnnnnnnnn...",
    "...nnn....nn..n.",
    "...nn.....n..nn.",
    "..nn.........nn.",
    "..nn.........nn.",
    "..nn.........nn.",
    "...n..n.....nn..",
    ".....nn....nnn..",
    "....nnnnnnnnn...",
    ".....nnnnnn.....",
    "......n.........",
    "................",
});
constexpr auto kLock = Draw<kSide, kButtonHeight>({
    "................",
    ".....######.....",
    "....#gggggg#....",
    "...#gg####gg#...",
    "...#g#....#g#...",
    "...#g#....#g#...",
    "..############..",
    "..#yyyyyyyyyy#..",
    "..#yyyy##yyyo#..",
    "..#yyy####yyo#..",
    "..#yyyy##yyyo#..",
    "..#yyyy##yyyo#..",
    "..#yooooooooo#..",
    "..############..",
    "................",
});
constexpr auto kOpenFile = Draw<kSide, kButtonHeight>({
    "................",
    "..........bbb...",
    ".........b...b.b",
    "..............bb",
    ".oooo........bbb",
    "oyyyyo..........",
    "oyyyyyooooooo...",
    "oyyyyyyyyyyyo...",
    "oyyyyooooooooooo",
    "oyyyoyyyyyyyyyo.",
    "oyyoyyyyyyyyyo..",
    "oyoyyyyyyyyyo...",
    "ooyyyyyyyyyo....",
    "ooooooooooo.....",
    "................",
});
constexpr auto kPrint = Draw<kSide, kButtonHeight>({
    "................",
    "....########....",
    "....#wwwwww#....",
    "....#wggggw#....",
    "....#wwwwww#....",
    "..###wggggw###..",
    ".#llllllllllll#.",
    ".#llllllllllll#.",
    ".#lllllllllyyl#.",
    ".##############.",
    ".#gg########gg#.",
    ".####wwwwww####.",
    "....#wggggw#....",
    "....########....",
    "................",
});
constexpr auto kSave = Draw<kSide, kButtonHeight>({
    "................",
    ".#############..",
    ".#bb#wwwwwww#b#.",
    ".#bb#ggggggw#b#.",
    ".#bb#wwwwwww#b#.",
    ".#bb#ggggggw#b#.",
    ".#bb#wwwwwww#b#.",
    ".#bbb#######bb#.",
    ".#bbbbbbbbbbbb#.",
    ".#bbb#######bb#.",
    ".#bbb#ll##l#bb#.",
    ".#bbb#ll##l#bb#.",
    ".#bbb#ll##l#bb#.",
    ".##############.",
    "................",
});
constexpr auto kSelect = Draw<kSide, kButtonHeight>({
    "................",
    "...........n....",
    ".#######..nn....",
    ".#wwwww#.nn.....",
    ".#wnwww#nn.ggggg",
    ".#wnnwwnn.......",
    ".#wwnnnn#.......",
    ".####nn##.......",
    "................",
    ".#######........",
    ".#wwwww#........",
    ".#wwwww#...ggggg",
    ".#wwwww#........",
    ".#######........",
    "................",
});
constexpr auto kFind = Draw<kSide, kButtonHeight>({
    "................",
    "....#####.......",
    "..##ccccc##.....",
    "..#ccWWcccc#....",
    ".#ccWWcccccc#...",
    ".#cWWccccccc#...",
    ".#cWcccccccc#...",
    ".#cccccccccc#...",
    "..#cccccccc#....",
    "..##ccccc###....",
    "....#####.oo#...",
    "..........ooo#..",
    "...........ooo#.",
    "............oo#.",
    ".............##.",
});
constexpr auto kFindNext = Draw<kSide, kButtonHeight>({
    "................",
    "...####.........",
    "..#cccc#........",
    ".#cWWccc#...b...",
    ".#cWcccc#...bb..",
    ".#cccccc#bbbbbb.",
    ".#cccccc#bbbbbbb",
    "..#cccc##bbbbbb.",
    "...####oo...bb..",
    "........oo..b...",
    ".........oo.....",
    "..........oo....",
    "...........oo...",
    "............o...",
    "................",
});
constexpr auto kIoView = Draw<kSide, kButtonHeight>({
    "................",
    "....#..#..#.....",
    "....#..#..#.....",
    "..###########...",
    "..#bbbbbbbbb#...",
    "###bwbwwwbbb###.",
    "..#bwbwbwbbb#...",
    "..#bwbwbwbbb#...",
    "###bwbwbwbbb###.",
    "..#bwbwwwbbb#...",
    "..#bbbbbbbbb#...",
    "..###########...",
    "....#..#..#.....",
    "....#..#..#.....",
    "................",
});
constexpr auto kTestGroup = Draw<kSide, kButtonHeight>({
    "llllllllllllllll",
    "llll#ll#ll#lllll",
    "llll#ll#ll#lllll",
    "ll###########lll",
    "ll#bbbbbbbbb#lll",
    "###bbbbbbbbb###l",
    "ll#bbbbbbbbb#lnn",
    "ll#bbbbbbbbb#nnl",
    "###bbbbbbbbbnn#l",
    "ll#bbbbbnnbnn#ll",
    "ll#bbbbbbnnnl#ll",
    "ll########nlllll",
    "llll#ll#ll#lllll",
    "llll#ll#ll#lllll",
    "llllllllllllllll",
});

constexpr auto kClosedFolder = Draw<kSide, kSide>({
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
    "WWooooWWWWWWWWWW",
    "WoyyyyoWWWWWWWWW",
    "WoyyyyyoooooooWW",
    "WoyyyyyyyyyyyoWW",
    "WoyyyyyyyyyyyoWW",
    "WoyyyyyyyyyyyoWW",
    "WoyyyyyyyyyyyoWW",
    "WoyyyyyyyyyyyoWW",
    "WoyyyyyyyyyyyoWW",
    "WoooooooooooooWW",
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
});
constexpr auto kOpenFolder = Draw<kSide, kSide>({
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
    "WWooooWWWWWWWWWW",
    "WoyyyyoWWWWWWWWW",
    "WoyyyyyoooooooWW",
    "WoyyyyyyyyyyyoWW",
    "WoyyyooooooooooW",
    "WoyyoyyyyyyyyyoW",
    "WoyyoyyyyyyyyoWW",
    "WoyoyyyyyyyyyoWW",
    "WoyoyyyyyyyyoWWW",
    "WooooooooooooWWW",
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
});
constexpr auto kPage = Draw<kSide, kSide>({
    "WWWWWWWWWWWWWWWW",
    "WWW########WWWWW",
    "WWW#wwwwww##WWWW",
    "WWW#wwwwww#l#WWW",
    "WWW#wggggw####WW",
    "WWW#wwwwwwwww#WW",
    "WWW#wggggggww#WW",
    "WWW#wwwwwwwww#WW",
    "WWW#wggggggww#WW",
    "WWW#wwwwwwwww#WW",
    "WWW#wggggwwww#WW",
    "WWW#wwwwwwwww#WW",
    "WWW#wwwwwwwww#WW",
    "WWW###########WW",
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
});
constexpr auto kMissingPage = Draw<kSide, kSide>({
    "WWWWWWWWWWWWWWWW",
    "WWW########WWWWW",
    "WWrrwwwwww##WrrW",
    "WWWrrwwwww#lrrWW",
    "WWW#rrgggw#rr#WW",
    "WWW#wrrwwwrrw#WW",
    "WWW#wgrrgrrww#WW",
    "WWW#wwwrrrwww#WW",
    "WWW#wggrrrgww#WW",
    "WWW#wwrrwrrww#WW",
    "WWW#wrrggwrrw#WW",
    "WWW#rrwwwwwrr#WW",
    "WWWrrwwwwwwwrrWW",
    "WWrr#########rrW",
    "WWWWWWWWWWWWWWWW",
    "WWWWWWWWWWWWWWWW",
});

// An arrow that points to what opens beside it.
constexpr auto kPlaceholderArrow = Draw<kSide, kSide>({
    "................",
    "................",
    "................",
    "......#.........",
    "......##........",
    "......###.......",
    "......####......",
    "......#####.....",
    "......#####.....",
    "......####......",
    "......###.......",
    "......##........",
    "......#.........",
    "................",
    "................",
    "................",
});

constexpr auto kPaneButtons =
    Strip<kSide, kButtonHeight, 8>({kRefresh, kLock, kOpenFile, kPrint, kSave, kSelect, kFind, kFindNext});
constexpr auto kRowImages = Strip<kSide, kSide, 4>({kClosedFolder, kOpenFolder, kPage, kMissingPage});

constexpr platform::PictureResource kBitmaps[] = {
    {IDT_FRAME, kSide, kButtonHeight, kIoView},
    {IDT_PANE, 8 * kSide, kButtonHeight, kPaneButtons},
    {IDB_TEST_GROUP, kSide, kButtonHeight, kTestGroup},
    // Closed folder, open folder, page, page crossed out; white is the mask.
    {IDB_ROW_IMAGES, 4 * kSide, kSide, kRowImages},
};

constexpr platform::PictureResource kIcons[] = {
    {IDI_PLACEHOLDER_ARROW, kSide, kSide, kPlaceholderArrow},
};

}  // namespace

std::span<const platform::PictureResource> ComponentBitmaps() {
  return kBitmaps;
}

std::span<const platform::PictureResource> ComponentIcons() {
  return kIcons;
}

}  // namespace pvw
