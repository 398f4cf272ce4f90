#include "filelist/wildcard.h"

#include <optional>

#include "platform/letter_case.h"

namespace vorlane {

namespace {

// One element of a pattern, at the pattern's beginning, tried on one character.
struct Element {
  std::size_t Length = 1;  // of the element in the pattern
  bool TakesCharacter = true;
  bool Matches = false;
};

// "[...]" at the pattern's beginning; nothing if it is broken.
std::optional<Element> MatchBracket(char16_t character, TextView pattern) {
  const auto close = pattern.find(u']', 1);
  if (close == TextView::npos) {
    return std::nullopt;
  }
  TextView listed = pattern.substr(1, close - 1);
  if (listed.empty()) {
    return Element{close + 1, false, true};
  }
  const bool inverted = listed.size() > 1 && listed.front() == u'!';
  if (inverted) {
    listed.remove_prefix(1);
  }
  bool found = false;
  for (std::size_t i = 0; i < listed.size(); ++i) {
    const char16_t low = UpperCase(listed[i]);
    char16_t high = low;
    // A hyphen is a range between two characters, and itself at either end.
    if (i + 2 < listed.size() && listed[i + 1] == u'-') {
      high = UpperCase(listed[i + 2]);
      if (high < low) {
        return std::nullopt;
      }
      i += 2;
    }
    found = found || (low <= character && character <= high);
  }
  return Element{close + 1, true, found != inverted};
}

// `character` is folded.
std::optional<Element> MatchElement(char16_t character, TextView pattern) {
  switch (pattern.front()) {
    case u'?':
      return Element{.Matches = true};
    case u'#':
      return Element{.Matches = character >= u'0' && character <= u'9'};
    case u'[':
      return MatchBracket(character, pattern);
    default:
      return Element{.Matches = UpperCase(pattern.front()) == character};
  }
}

bool HasBrokenBracket(TextView pattern) {
  for (auto open = pattern.find(u'['); open != TextView::npos;) {
    const auto element = MatchBracket(u'A', pattern.substr(open));
    if (!element) {
      return true;
    }
    open = pattern.find(u'[', open + element->Length);
  }
  return false;
}

}  // namespace

bool MatchesWildcard(TextView name, TextView pattern) {
  if (pattern == u"*.*") {
    return true;
  }
  if (HasBrokenBracket(pattern)) {
    return false;
  }
  // The usual walk with one point to come back to: a later "*" makes an earlier one final.
  std::size_t at = 0;
  std::size_t in = 0;
  std::optional<std::size_t> starAt;
  std::size_t starIn = 0;
  while (true) {
    if (in < pattern.size() && pattern[in] == u'*') {
      starIn = ++in;
      starAt = at;
      continue;
    }
    if (in < pattern.size()) {
      const char16_t character = at < name.size() ? UpperCase(name[at]) : u'\0';
      const auto element = MatchElement(character, pattern.substr(in));
      if (element->Matches && (!element->TakesCharacter || at < name.size())) {
        in += element->Length;
        at += element->TakesCharacter ? 1 : 0;
        continue;
      }
    } else if (at == name.size()) {
      return true;
    }
    if (!starAt || *starAt >= name.size()) {
      return false;
    }
    at = ++*starAt;
    in = starIn;
  }
}

bool MatchesSystemWildcard(TextView name, TextView pattern) {
  if (pattern == u"*.*") {
    return true;
  }
  std::size_t at = 0;
  std::size_t in = 0;
  std::optional<std::size_t> starAt;
  std::size_t starIn = 0;
  while (at < name.size()) {
    if (in < pattern.size() && pattern[in] == u'*') {
      starIn = ++in;
      starAt = at;
    } else if (in < pattern.size() &&
               (pattern[in] == u'?' || UpperCase(pattern[in]) == UpperCase(name[at]))) {
      ++in;
      ++at;
    } else if (starAt) {
      at = ++*starAt;
      in = starIn;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(u'*', in) == TextView::npos;
}

}  // namespace vorlane
