#include "engine/process_file_name.h"

#include <array>

#include "engine/evaluate_tags.h"
#include "engine/keywords.h"
#include "engine/occurring_tags.h"

namespace vorlane {
namespace {

bool HoldsBrackets(TextView text) {
  return Contains(text, u"<") && Contains(text, u">");
}

struct StepTag {
  TextView Tag;
};

constexpr std::array<StepTag, 3> TagStepTags = {
    {{u"<WriteID3v1>"}, {u"<WriteID3v2>"}, {u"<RemoveID3v1>"}}};
constexpr std::array<StepTag, 2> FolderStepTags = {{{u"<CREATEFOLDER>"}, {u"<MOVE>"}}};

constexpr TagFinder TagStepFinder(TagStepTags, &StepTag::Tag);
constexpr TagFinder FolderStepFinder(FolderStepTags, &StepTag::Tag);

bool IsTagStep(TextView code) {
  return TagStepFinder.Occurring(code) != 0;
}

bool IsFolderStep(TextView work) {
  return FolderStepFinder.Occurring(work) != 0;
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
