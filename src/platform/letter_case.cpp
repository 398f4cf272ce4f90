#include "platform/letter_case.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace vorlane {
namespace {

struct CaseRange {
  char16_t First;
  char16_t Last;
  int Step;
  int Offset;
};

#include "platform/letter_case_table.inc"

// The offset of each character's other case, modulo 65,536, by pages of 256 characters. Page 0 of
// the offsets is shared by all characters that have no other case. A look-up costs the same for
// all characters, as little as a special path for ASCII would.
struct CaseTable {
  static constexpr std::size_t MostPages = 24;

  std::array<std::uint8_t, 256> PageOf = {};
  std::array<std::array<char16_t, 256>, MostPages> Offsets = {};

  char16_t Map(char16_t character) const {
    return static_cast<char16_t>(character + Offsets[PageOf[character >> 8]][character & 0xFF]);
  }
};

consteval CaseTable MakeCaseTable(std::span<const CaseRange> ranges) {
  CaseTable table;
  std::uint8_t lastPage = 0;
  for (const CaseRange& range : ranges) {
    for (int character = range.First; character <= range.Last; character += range.Step) {
      std::uint8_t& page = table.PageOf[character >> 8];
      if (page == 0) {
        page = ++lastPage;
      }
      table.Offsets[page][character & 0xFF] = static_cast<char16_t>(range.Offset);
    }
  }
  return table;
}

constexpr CaseTable UpperTable = MakeCaseTable(UpperRanges);
constexpr CaseTable LowerTable = MakeCaseTable(LowerRanges);

}  // namespace

char16_t UpperCase(char16_t character) {
  return UpperTable.Map(character);
}

char16_t LowerCase(char16_t character) {
  return LowerTable.Map(character);
}

Text UpperCase(TextView text) {
  Text result(text);
  for (char16_t& character : result) {
    character = UpperTable.Map(character);
  }
  return result;
}

Text LowerCase(TextView text) {
  Text result(text);
  for (char16_t& character : result) {
    character = LowerTable.Map(character);
  }
  return result;
}

Text FoldCase(TextView text) {
  return UpperCase(text);
}

bool EqualIgnoringCase(TextView a, TextView b) {
  return a.size() == b.size() && CompareIgnoringCase(a, b) == 0;
}

std::uint64_t HashIgnoringCase(TextView text) {
  // FNV-1a over the folded units.
  std::uint64_t hash = 14695981039346656037ULL;
  for (const char16_t unit : text) {
    hash = (hash ^ UpperTable.Map(unit)) * 1099511628211ULL;
  }
  return hash;
}

int CompareIgnoringCase(TextView a, TextView b) {
  const std::size_t shared = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < shared; ++i) {
    if (a[i] == b[i]) {
      continue;
    }
    const char16_t foldedA = UpperTable.Map(a[i]);
    const char16_t foldedB = UpperTable.Map(b[i]);
    if (foldedA != foldedB) {
      return foldedA < foldedB ? -1 : 1;
    }
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

}  // namespace vorlane
