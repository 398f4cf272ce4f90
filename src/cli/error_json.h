// A failure as JSON: {"number":5,"description":"..."}.
#pragma once

#include "cli/json_text.h"
#include "platform/failure.h"

namespace vorlane {

inline Json ErrorToJson(const RunError& error) {
  return {{"number", error.Number()}, {"description", JsonString(error.Description())}};
}

}  // namespace vorlane
