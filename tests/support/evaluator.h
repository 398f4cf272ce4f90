// Evaluates codes for one entry of a test.
#pragma once

#include "engine/evaluate_tags.h"
#include "platform/file_name_bytes.h"
#include "support/counting_loop.h"
#include "support/fake_facts.h"

namespace vorlane {

struct Evaluator {
  FakeFacts Facts = {};
  CountingLoop Loop = {};
  PathStyle Paths = PathStyle::Windows;
  Text Path = u"C:\\Music\\";
  Text FileName = u"name.ext";

  Text operator()(TextView code, TextView defaultText = u"name") {
    EvaluationContext context{Facts, Loop, Paths};
    return EvaluateTags(code, Path, FileName, defaultText, context);
  }
};

// One row of a table of codes and what they give.
struct CodeCase {
  Text Code;
  Text Result;
};

}  // namespace vorlane
