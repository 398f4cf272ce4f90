// A second evaluator, as slow and as plain as can be: each rule step by step in the order in which
// it is told, nothing remembered, nothing skipped. The real one is compared with it on random
// codes.
#pragma once

#include <optional>

#include "engine/evaluation_context.h"
#include "platform/text.h"

namespace vorlane {

struct LiteralLimits {
  int PassesLeft = 300;
  std::size_t LongestCode = 5'000;
};

// Nothing if the evaluation passes the limits. One that changes nothing any more is ended and gives
// its code.
std::optional<Text> LiterallyEvaluate(const Text& code, const Text& path, const Text& fileName,
                                      const Text& defaultText, EvaluationContext& context,
                                      LiteralLimits& limits);

}  // namespace vorlane
