#include "engine/process_file_name.h"

#include "engine/evaluate_tags.h"
#include "engine/keywords.h"

namespace vorlane {
namespace {

bool HoldsBrackets(TextView text) {
  return Contains(text, u"<") && Contains(text, u">");
}

bool IsTagStep(TextView code) {
  return Contains(code, u"<WriteID3v1>") || Contains(code, u"<WriteID3v2>") ||
         Contains(code, u"<RemoveID3v1>");
}

bool IsFolderStep(TextView work) {
  return Contains(work, u"<CREATEFOLDER>") || Contains(work, u"<MOVE>");
}

// Keywords first, so that a function tag sees values only.
void ReplaceKeywords(Text& work, const ProcessRequest& request, EvaluationContext& context,
                     bool& wasNumbered) {
  wasNumbered = ReplaceFileKeywords(
      work, {request.Path, request.FileName, request.AutoNumber, request.RowCount}, context);
  if (!HoldsBrackets(work) || !HasMp3Extension(request.FileName)) {
    return;
  }
  if (!request.TagV2.Present) {
    request.TagV2 = request.TagV1;
  }
  ReplaceTagKeywords(work, request.TagV2, Text(request.Path).append(request.FileName),
                     context.Facts);
}

}  // namespace

Text ProcessFileName(const ProcessRequest& request, EvaluationContext& context, bool* wasNumbered) {
  bool unused = false;
  bool& isNumbered = wasNumbered != nullptr ? *wasNumbered : unused;
  isNumbered = false;
  if (!HoldsBrackets(request.Code) || (!request.AllowTagSteps && IsTagStep(request.Code))) {
    return {};
  }
  Text work = SubstituteBoxes(Text(Trim(request.Code)), request.Boxes);
  if (!HoldsBrackets(work)) {
    return work;
  }
  if (!request.AllowFolderSteps && IsFolderStep(work)) {
    return {};
  }
  ReplaceKeywords(work, request, context, isNumbered);
  if (!HoldsBrackets(work)) {
    return work;
  }
  return EvaluateTags(work, request.Path, request.FileName, NameOnlyOf(request.FileName), context);
}

}  // namespace vorlane
