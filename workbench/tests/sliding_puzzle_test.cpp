#include "workbench/sliding_puzzle.h"

#include <gtest/gtest.h>

namespace korvex {
namespace {

TEST(SlidingPuzzleTest, OnlyTilesNextToTheGapSlideAndAShuffleCanBeSolved) {
    SlidingPuzzle puzzle;
    EXPECT_TRUE(puzzle.solved());
    EXPECT_FALSE(puzzle.move(0));  // far from the gap
    EXPECT_FALSE(puzzle.move(11 - 8));
    EXPECT_TRUE(puzzle.move(14));  // left of the gap
    EXPECT_EQ(puzzle.tile(15), 15);
    EXPECT_EQ(puzzle.tile(14), 0);
    EXPECT_FALSE(puzzle.solved());
    EXPECT_TRUE(puzzle.move(15));
    EXPECT_TRUE(puzzle.solved());
    EXPECT_EQ(puzzle.moves(), 2);

    // Shuffled by legal moves: a tile at the end of a row can't wrap to the
    // next row, and every number is still there once.
    puzzle.shuffle(7);
    EXPECT_FALSE(puzzle.solved());
    EXPECT_EQ(puzzle.moves(), 0);
    int sum = 0;
    for (int cell = 0; cell < SlidingPuzzle::kCells; ++cell) sum += puzzle.tile(cell);
    EXPECT_EQ(sum, 120);
}

}  // namespace
}  // namespace korvex
