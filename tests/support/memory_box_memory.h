// The remembered boxes' texts in a map.
#pragma once

#include <map>

#include "catalogue/box_memory.h"

namespace vorlane {

struct MemoryBoxMemory final : BoxMemory {
  std::optional<Text> Recall(TextView key) override {
    const auto found = Texts.find(Text(key));
    return found == Texts.end() ? std::nullopt : std::optional(found->second);
  }
  void Keep(TextView key, TextView text) override { Texts[Text(key)] = text; }

  std::map<Text, Text> Texts;
};

}  // namespace vorlane
