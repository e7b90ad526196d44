#include "workbench/sliding_puzzle.h"

#include <cstdlib>
#include <random>

namespace korvex {

SlidingPuzzle::SlidingPuzzle() {
    for (int cell = 0; cell < kCells; ++cell)
        tiles_[static_cast<std::size_t>(cell)] = cell + 1 < kCells ? cell + 1 : 0;
}

int SlidingPuzzle::gap() const {
    for (int cell = 0; cell < kCells; ++cell)
        if (tiles_[static_cast<std::size_t>(cell)] == 0) return cell;
    return kCells - 1;
}

bool SlidingPuzzle::move(int cell) {
    if (cell < 0 || cell >= kCells) return false;
    const int empty = gap();
    const int rows = std::abs(cell / kSide - empty / kSide);
    const int columns = std::abs(cell % kSide - empty % kSide);
    if (rows + columns != 1) return false;
    std::swap(tiles_[static_cast<std::size_t>(cell)], tiles_[static_cast<std::size_t>(empty)]);
    ++moves_;
    return true;
}

bool SlidingPuzzle::solved() const {
    for (int cell = 0; cell + 1 < kCells; ++cell)
        if (tiles_[static_cast<std::size_t>(cell)] != cell + 1) return false;
    return true;
}

void SlidingPuzzle::shuffle(std::uint32_t seed, int steps) {
    std::mt19937 random(seed);
    int previous = -1;
    for (int done = 0; done < steps;) {
        const int empty = gap();
        const int neighbours[] = {empty - kSide, empty + kSide, empty % kSide > 0 ? empty - 1 : -1,
                                  empty % kSide < kSide - 1 ? empty + 1 : -1};
        const int cell = neighbours[random() % 4];
        // Not straight back: that would undo the step before.
        if (cell == previous || !move(cell)) continue;
        previous = empty;
        ++done;
    }
    if (solved()) move(gap() - 1 >= 0 ? gap() - 1 : gap() + 1);
    moves_ = 0;
}

}  // namespace korvex
