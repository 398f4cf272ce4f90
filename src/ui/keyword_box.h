// cboKeywords: the keywords of the tag language. A pick goes to the clipboard, to be pasted into an
// option box, and its help into the box's tip.
#pragma once

#include <QComboBox>
#include <functional>

#include "catalogue/keyword_list.h"
#include "form/form.h"
#include "platform/clipboard.h"
#include "ui/cls_tooltip.h"

namespace vorlane {

class KeywordBox {
 public:
  // All have to outlive it. `tip` gives the box's tip.
  KeywordBox(QComboBox& box, Form& form, Clipboard& clipboard, std::function<ClsTooltip&()> tip);

  // Fills the box. It shows its own name until something is picked.
  void LoadKeywords(KeywordList list);

  // What a pick of the entry with that index, from 0, does.
  void cboKeywords_Click(int entry);

 private:
  QComboBox& box_;
  Form& form_;
  Clipboard& clipboard_;
  std::function<ClsTooltip&()> tip_;
  KeywordList list_;
};

}  // namespace vorlane
