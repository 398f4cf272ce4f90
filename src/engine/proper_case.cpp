#include "engine/proper_case.h"

#include "platform/letter_case.h"

namespace vorlane {

Text ProperCase(TextView text) {
  constexpr TextView endsOfWords = u"_-.( ";
  const TextView trimmed = Trim(text);
  Text result;
  result.reserve(trimmed.size());
  bool beginsWord = true;
  for (const char16_t character : trimmed) {
    result.push_back(beginsWord ? UpperCase(character) : LowerCase(character));
    beginsWord = Contains(endsOfWords, TextView(&character, 1));
  }
  return result;
}

}  // namespace vorlane
