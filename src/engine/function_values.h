// What each function tag makes of the text between its tags.
//
// Every step of a tag stands for itself: a step that fails is abandoned where it stands, and what
// it hadn't assigned yet keeps its old value.
#pragma once

#include <cstdint>
#include <vector>

#include "engine/evaluation_context.h"
#include "engine/function_tags.h"
#include "platform/text.h"

namespace vorlane {

// What passes from one tag to the next within one evaluation.
struct WorkingValues {
  Text Result;                  // a tag that assigns nothing gives the result of the tag before
  std::int16_t Occurrence = 0;  // the occurrence number of "<MID>"
  std::vector<Text> Fields;

  bool operator==(const WorkingValues&) const = default;
};

// The entry that an evaluation is about.
struct EvaluatedEntry {
  TextView Path;  // its folder, with a trailing separator
  TextView FileName;
  TextView DefaultText;  // what an empty first field of "<MID>" or "<REPLACE>" means
};

// Brings `values` up to date for one tag; the value of the tag is then values.Result.
void EvaluateFunction(FunctionName name, TextView inner, const EvaluatedEntry& entry,
                      EvaluationContext& context, WorkingValues& values);

}  // namespace vorlane
