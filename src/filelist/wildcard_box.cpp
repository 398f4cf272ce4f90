#include "filelist/wildcard_box.h"

#include <algorithm>

#include "platform/letter_case.h"

namespace vorlane {

namespace {

constexpr TextView AllNames = u"*.*";
constexpr TextView FirstItems = u"*.*|*.mp3";

bool IsForThreeLetterExtension(TextView wildcard) {
  return wildcard.size() == 5 && wildcard.starts_with(u"*.");
}

}  // namespace

void WildcardBox::LoadItems(TextView stored) {
  const TextView items = stored.empty() ? FirstItems : stored;
  form_.WildCardItems.clear();
  for (std::size_t start = 0; start <= items.size();) {
    const std::size_t end = std::min(items.find(u'|', start), items.size());
    form_.WildCardItems.emplace_back(items.substr(start, end - start));
    start = end + 1;
  }
  form_.View.WildCardChanged();
}

Text WildcardBox::StoredItems() const {
  Text stored;
  for (const Text& item : form_.WildCardItems) {
    stored.append(item).append(u"|");
  }
  return stored.substr(0, stored.size() - (stored.empty() ? 0 : 1));
}

void WildcardBox::cboWildCard_Change(TextView text) {
  form_.StopTimer(FormTimer::UpdateList);
  form_.WildCard = text.empty() ? AllNames : text;
  if (IsForThreeLetterExtension(form_.WildCard) && !HasItemBeginningWith(form_.WildCard)) {
    form_.WildCardItems.push_back(form_.WildCard);
  }
  form_.View.WildCardChanged();
  if (FormVisible) {
    form_.StartTimer(FormTimer::UpdateList);
  }
}

void WildcardBox::SetText(TextView text) {
  if (text != form_.WildCard) {
    cboWildCard_Change(text);
  }
}

bool WildcardBox::HasItemBeginningWith(TextView text) const {
  return std::any_of(form_.WildCardItems.begin(), form_.WildCardItems.end(), [&](const Text& item) {
    return EqualIgnoringCase(TextView(item).substr(0, text.size()), text);
  });
}

}  // namespace vorlane
