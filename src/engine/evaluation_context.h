#pragma once

#include "engine/entry_facts.h"
#include "platform/message_loop.h"
#include "platform/path_style.h"

namespace vorlane {

// What an evaluation needs from outside. Owns nothing.
struct EvaluationContext {
  EntryFacts& Facts;
  MessageLoop& Loop;
  PathStyle Paths = HostPathStyle;
};

}  // namespace vorlane
