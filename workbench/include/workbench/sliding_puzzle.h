#pragma once
// The pastime: fifteen numbered tiles in a 4 x 4 frame with one gap; a tile
// next to the gap slides into it. Shuffled by legal moves only, so every
// game can be solved.

#include <array>
#include <cstdint>

namespace korvex {

class SlidingPuzzle {
  public:
    static constexpr int kSide = 4;
    static constexpr int kCells = kSide * kSide;

    SlidingPuzzle();  // solved: 1 to 15, the gap last

    // The tile at a cell, 0 for the gap.
    int tile(int cell) const { return tiles_.at(static_cast<std::size_t>(cell)); }
    // Slides the tile at `cell` into the gap if it is next to it.
    bool move(int cell);
    bool solved() const;
    int moves() const { return moves_; }
    // `steps` random legal moves from `seed`; the move count starts at 0.
    void shuffle(std::uint32_t seed, int steps = 400);

  private:
    int gap() const;

    std::array<int, kCells> tiles_{};
    int moves_ = 0;
};

}  // namespace korvex
