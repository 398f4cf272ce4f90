// The engine's entry point: one piece of operation code and one entry in, the finished text out.
#pragma once

#include <cstdint>

#include "engine/box_values.h"
#include "engine/evaluation_context.h"
#include "metadata/id3_tag.h"
#include "platform/text.h"

namespace vorlane {

// Owns nothing: everything it refers to has to outlive the call.
struct ProcessRequest {
  TextView Code;      // a step of an operation, or the code of an option box
  TextView FileName;  // with extension, without folder
  TextView Path;      // the folder, with a trailing separator
  const ID3Tag& TagV1;
  ID3Tag& TagV2;  // becomes a copy of TagV1 if it isn't present and the entry is an MP3 file
  std::int32_t AutoNumber = 1;
  bool AllowTagSteps = false;     // steps that write or remove tags
  bool AllowFolderSteps = false;  // steps that create folders or move
  const BoxValues& Boxes;
  std::int32_t RowCount = 0;  // of the whole list, for the width of "<AUTONUMBER>"
};

// The empty text where there is nothing to do: the code holds no "<" or no ">", or it is a step of
// a kind that isn't allowed here. Otherwise the boxes' values and all variable keywords are put in,
// in that order, and what that gives is evaluated. A keyword whose value can't be had stays in the
// text; so do the tags "<WriteID3v1>", "<WriteID3v2>" and "<RemoveID3v1>" of a tag step.
//
// Never fails. `wasNumbered`, if given, is set to whether "<AUTONUMBER>" was replaced: if not, no
// other number can give another text.
Text ProcessFileName(const ProcessRequest& request, EvaluationContext& context,
                     bool* wasNumbered = nullptr);

}  // namespace vorlane
