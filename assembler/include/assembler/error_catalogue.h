#pragma once
// The numbered findings of an assembly run: words and whether a second pass
// may heal them (a forward reference) or not.

#include <string>

namespace korvex {

enum class FindingKind { Retried, Final };

struct CatalogueEntry {
    std::string words;  // Windows-1252, empty for a number outside the catalogue
    FindingKind kind;
};

// A number outside the catalogue has empty words and counts as retried.
CatalogueEntry catalogueEntry(int number);

FindingKind findingKind(int number);

// ";>err" + number + ": " + words, the form recordError writes.
std::string catalogueMarker(int number);

}  // namespace korvex
