#pragma once
// The program's version, as the listing's first line and the about box show it.

namespace korvex {

inline constexpr const char* kVersionNumber = "0.1";
inline constexpr const char* kReleaseDate = "23.11.2026";

}  // namespace korvex
