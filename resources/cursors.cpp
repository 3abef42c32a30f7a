#include "resources/cursors.h"

#include "resources/ids.h"
#include "resources/picture_text.h"

namespace pvw {

namespace {

constexpr std::size_t kSide = 16;

// The tip of each is its upper left corner, but for the sign that says no.
constexpr auto kNoDrop = Draw<kSide, kSide>({
    "................",
    ".....######.....",
    "...##rrrrrr##...",
    "..#rrrr##rrrr#..",
    "..#rrr#..##rr#..",
    ".#rrrrr#...#rr#.",
    ".#rr#rrr#..#rr#.",
    ".#rr#.#rr#.#rr#.",
    ".#rr#..#rr##rr#.",
    ".#rr#...#rrrrr#.",
    ".#rr#....#rrrr#.",
    "..#rr##...#rr#..",
    "..#rrrr##rrrr#..",
    "...##rrrrrr##...",
    ".....######.....",
    "................",
});
constexpr auto kMove = Draw<kSide, kSide>({
    "#...............",
    "##..............",
    "#w#.............",
    "#ww#............",
    "#www#...........",
    "#wwww#..........",
    "#wwwww#.........",
    "#wwwwww#........",
    "#wwww####.......",
    "#w#ww#..........",
    "##.#ww#.........",
    "#..#ww#.########",
    "....##..#gg##gg#",
    "........#g#..#g#",
    "........#gg##gg#",
    "........########",
});
constexpr auto kCopy = Draw<kSide, kSide>({
    "#...............",
    "##..............",
    "#w#.............",
    "#ww#............",
    "#www#...........",
    "#wwww#..........",
    "#wwwww#.........",
    "#wwwwww#........",
    "#wwww####.......",
    "#w#ww#..########",
    "##.#ww#.#wwnnww#",
    "#..#ww#.#wwnnww#",
    "....##..#nnnnnn#",
    "........#nnnnnn#",
    "........#wwnnww#",
    "........########",
});

constexpr platform::PictureResource kCursors[] = {
    {IDC_DROP_NONE, kSide, kSide, kNoDrop},
    {IDC_DROP_MOVE, kSide, kSide, kMove},
    {IDC_DROP_COPY, kSide, kSide, kCopy},
};

}  // namespace

std::span<const platform::PictureResource> ComponentCursors() {
  return kCursors;
}

}  // namespace pvw
