// Collects the message boxes that are shown. A question is unexpected: the test fails.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "platform/prompter.h"

namespace vorlane {

class RecordingPrompter final : public Prompter {
 public:
  struct Box {
    BoxIcon Icon = BoxIcon::None;
    Text Title;
    Text Message;
    bool operator==(const Box&) const = default;
  };

  void Show(BoxIcon icon, TextView title, TextView text) override {
    Boxes.push_back({icon, Text(title), Text(text)});
  }

  BoxAnswer AskYesNo(BoxIcon, TextView, TextView, BoxAnswer unasked) override {
    ADD_FAILURE() << "a question was asked";
    return unasked;
  }

  std::vector<Box> Boxes;
};

}  // namespace vorlane
