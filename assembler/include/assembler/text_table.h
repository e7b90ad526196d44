#pragma once
// A growable table of text rows, as the assembler keeps its symbols. Column 0
// is the key; `find` returns the first row holding a key, as a scan from row 0
// would, but through an index, so large sources stay linear.

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace korvex {

template <std::size_t Columns>
class TextTable {
  public:
    using Row = std::array<std::string, Columns>;

    TextTable() { reset(); }

    // A new table holds one empty row at index 0.
    void reset() {
        rows_.assign(1, Row{});
        index_.clear();
    }

    int size() const { return static_cast<int>(rows_.size()); }
    int lastIndex() const { return size() - 1; }
    const Row& row(int i) const { return rows_.at(static_cast<std::size_t>(i)); }
    const std::string& at(int i, std::size_t column) const { return row(i)[column]; }

    void set(int i, std::size_t column, std::string value) {
        auto& cell = rows_.at(static_cast<std::size_t>(i))[column];
        if (column == 0) {
            unindex(cell, i);
            indexKey(value, i);
        }
        cell = std::move(value);
    }

    // Sets the size so that `last` is the last index; rows beyond it are lost.
    void growTo(int last) {
        const auto newSize = static_cast<std::size_t>(std::max(last, -1) + 1);
        for (std::size_t i = newSize; i < rows_.size(); ++i) {
            unindex(rows_[i][0], static_cast<int>(i));
        }
        rows_.resize(newSize);
    }

    // Appends at the last index plus 1 and returns the new index.
    int appendRow() {
        growTo(size());
        return lastIndex();
    }

    // Uses the last row while its key is empty, else appends: so the empty row
    // of a new table is filled first.
    int appendByKeyRule() {
        if (rows_.empty() || !rows_.back()[0].empty()) return appendRow();
        return lastIndex();
    }

    // First row whose key equals `key` exactly, or -1.
    int find(std::string_view key) const {
        if (key.empty()) {
            for (std::size_t i = 0; i < rows_.size(); ++i) {
                if (rows_[i][0].empty()) return static_cast<int>(i);
            }
            return -1;
        }
        const auto hit = index_.find(key);
        if (hit == index_.end() || hit->second.empty()) return -1;
        return hit->second.front();
    }

    // Every row holding `key`, in row order.
    std::vector<int> findAll(std::string_view key) const {
        if (key.empty()) {
            std::vector<int> rows;
            for (std::size_t i = 0; i < rows_.size(); ++i) {
                if (rows_[i][0].empty()) rows.push_back(static_cast<int>(i));
            }
            return rows;
        }
        const auto hit = index_.find(key);
        return hit == index_.end() ? std::vector<int>{} : hit->second;
    }

  private:
    void indexKey(const std::string& key, int i) {
        if (key.empty()) return;
        auto& rowsOfKey = index_[key];
        rowsOfKey.insert(std::lower_bound(rowsOfKey.begin(), rowsOfKey.end(), i), i);
    }
    void unindex(const std::string& key, int i) {
        const auto hit = index_.find(key);
        if (hit == index_.end()) return;
        auto& rowsOfKey = hit->second;
        const auto pos = std::lower_bound(rowsOfKey.begin(), rowsOfKey.end(), i);
        if (pos != rowsOfKey.end() && *pos == i) rowsOfKey.erase(pos);
        if (rowsOfKey.empty()) index_.erase(hit);
    }

    // Lets a lookup by string_view go without building a string.
    struct KeyHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const {
            return std::hash<std::string_view>{}(key);
        }
    };

    std::vector<Row> rows_;
    std::unordered_map<std::string, std::vector<int>, KeyHash, std::equal_to<>> index_;
};

}  // namespace korvex
