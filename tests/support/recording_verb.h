// A folder verb that is nothing but the program that it names.
#pragma once

#include "shell/verb_registry.h"

namespace vorlane {

class RecordingVerb final : public VerbAdapter {
 public:
  bool IsPresent() override { return !Program.empty(); }

  bool Write(TextView programPath) override {
    if (!Refuses) {
      Program = programPath;
    }
    return !Refuses;
  }

  bool Remove() override {
    const bool wasPresent = IsPresent();
    Program.clear();
    return wasPresent;
  }

  Text Program;
  bool Refuses = false;
};

}  // namespace vorlane
