#include "engine/box_values.h"

#include "engine/replacing.h"
#include "platform/failure.h"

namespace vorlane {
namespace {

// "<BOX", one digit, ">", anywhere.
bool HoldsBoxKeyword(TextView work) {
  constexpr TextView opening = u"<BOX";
  for (auto hit = work.find(opening); hit != TextView::npos; hit = work.find(opening, hit + 1)) {
    const TextView rest = work.substr(hit + opening.size());
    if (rest.size() >= 2 && rest[0] >= u'0' && rest[0] <= u'9' && rest[1] == u'>') {
      return true;
    }
  }
  return false;
}

}  // namespace

Text SubstituteBoxes(Text work, const BoxValues& boxes) {
  for (int pass = 0; pass < 2 && HoldsBoxKeyword(work); ++pass) {
    for (std::size_t i = 0; i < BoxCount; ++i) {
      if (boxes.Visible[i]) {
        const char16_t digit = static_cast<char16_t>(u'1' + i);
        const char16_t keyword[] = {u'<', u'B', u'O', u'X', digit, u'>'};
        Attempt(
            [&] { ReplaceEvery(work, TextView(keyword, std::size(keyword)), boxes.Values[i]); });
      }
    }
  }
  return work;
}

}  // namespace vorlane
