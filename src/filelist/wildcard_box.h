// The box with the wildcard: what a change of its text sets off, and which texts it remembers.
#pragma once

#include "form/form.h"

namespace vorlane {

class WildcardBox {
 public:
  explicit WildcardBox(Form& form) : form_(form) {}

  // Fills the items from a stored list, joined by "|"; an empty one gives "*.*" and "*.mp3".
  void LoadItems(TextView stored);
  // The items, joined by "|".
  Text StoredItems() const;

  // The text has become another one, typed or picked: the list follows after a pause. The empty
  // text becomes "*.*". A wildcard for an extension of three letters joins the items.
  void cboWildCard_Change(TextView text);

  // The program sets the text; a text that is there already sets nothing off.
  void SetText(TextView text);

  // While the window isn't visible a change lists nothing.
  bool FormVisible = false;

 private:
  bool HasItemBeginningWith(TextView text) const;

  Form& form_;
};

}  // namespace vorlane
