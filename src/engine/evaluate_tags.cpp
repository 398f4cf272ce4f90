#include "engine/evaluate_tags.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "engine/function_tags.h"
#include "engine/function_values.h"
#include "engine/positions.h"
#include "engine/replacing.h"
#include "platform/failure.h"

namespace vorlane {
namespace {

// What one evaluation and those nested in it share.
struct Evaluation {
  EvaluatedEntry Entry;
  EvaluationContext& Context;

  // Passes over the list of tags. This also bounds how deep evaluations nest. Codes that end stay
  // far below it: within the reach of positions there is room for less than 3,000 tags.
  int PassesLeft = 10'000;

  // Characters that passes may still begin with. A code that grows for ever would otherwise be
  // scanned for a minute before its passes are used up. The deepest nesting that positions allow
  // takes some 45 million.
  std::int64_t CharactersLeft = 64'000'000;
};

// What a pass over the tags goes by. Two passes that begin alike go on alike for ever.
struct State {
  Text Code;
  WorkingValues Values;
  Position OpenPos = 0;
  Position ClosePos = 0;
  Text Inner;
  Text SavedInner;  // the same as it stands in the code

  bool operator==(const State&) const = default;
};

// The rewriting of one text. Where the text between two tags has to be rewritten first, Run stops
// and asks for that: nesting goes thousands of levels deep, too deep for calls within calls.
class Rewriting {
 public:
  Rewriting(Text code, Evaluation& evaluation) : evaluation_(evaluation) {
    state_.Code = std::move(code);
    CodeChanged();
  }

  // Goes on until the text is finished (false), or until an inner text has to be evaluated by
  // itself first (true): take it by TakeInner, give its value to FinishTag, and run again.
  bool Run();

  Text TakeInner() { return std::move(state_.Inner); }
  void FinishTag(Text inner);
  Text TakeCode() { return std::move(state_.Code); }

 private:
  bool BeginPass();
  bool TakeUpTag();
  void CodeChanged();

  Evaluation& evaluation_;
  State state_;
  std::size_t next_ = FunctionTags.size();  // the tag of the list that is looked at next
  std::uint32_t occurring_ = 0;             // the tags that occur in the code, kept by CodeChanged
  bool hasPassed_ = false;
  // At the beginning of the pass before. None is kept for the first pass: few codes need a second,
  // and it is the first in which evaluations nest deeply.
  std::optional<State> lastState_;
};

bool Rewriting::Run() {
  while (true) {
    if (next_ == FunctionTags.size() && !BeginPass()) {
      return false;
    }
    if (!TakeUpTag()) {
      ++next_;
    } else if (ContainsFunctionTag(state_.Inner)) {
      return true;
    } else {
      FinishTag(std::move(state_.Inner));
    }
  }
}

bool Rewriting::BeginPass() {
  if (occurring_ == 0 || evaluation_.PassesLeft == 0 || evaluation_.CharactersLeft <= 0 ||
      state_.Code.size() > LongestText) {
    return false;
  }
  if (hasPassed_) {
    if (lastState_ == state_) {
      return false;
    }
    lastState_ = state_;
  }
  hasPassed_ = true;
  --evaluation_.PassesLeft;
  evaluation_.CharactersLeft -= static_cast<std::int64_t>(state_.Code.size());
  next_ = 0;
  return true;
}

// True if the tag has an inner text to evaluate now.
bool Rewriting::TakeUpTag() {
  const FunctionTag& tag = FunctionTags[next_];
  if ((occurring_ >> next_ & 1) == 0) {
    state_.OpenPos = 0;
    return false;
  }
  Attempt([&] { state_.OpenPos = PositionOf(state_.Code, tag.Opening); });
  if (state_.OpenPos > 0) {
    Attempt([&] { state_.ClosePos = FindClosingTag(state_.Code, tag, evaluation_.Context.Loop); });
  }
  if (state_.OpenPos > 0 && state_.ClosePos < 1) {
    ReplaceEvery(state_.Code, tag.Opening, u"");
    CodeChanged();
  }
  if (state_.OpenPos <= 0 || state_.OpenPos >= state_.ClosePos) {
    return false;
  }
  Attempt([&] {
    state_.OpenPos = ToPosition(state_.OpenPos + static_cast<int>(tag.Opening.size()));
    state_.Inner = Slice(state_.Code, state_.OpenPos, state_.ClosePos - state_.OpenPos);
    state_.SavedInner = state_.Inner;
  });
  return true;
}

void Rewriting::FinishTag(Text inner) {
  const FunctionTag& tag = FunctionTags[next_];
  state_.Inner = std::move(inner);
  EvaluateFunction(tag.Name, state_.Inner, evaluation_.Entry, evaluation_.Context, state_.Values);
  Attempt([&] {
    Text expression;
    expression.reserve(tag.Opening.size() + state_.SavedInner.size() + tag.Closing.size());
    expression.append(tag.Opening).append(state_.SavedInner).append(tag.Closing);
    if (ReplaceEvery(state_.Code, expression, state_.Values.Result)) {
      CodeChanged();
    }
  });
  ++next_;
}

void Rewriting::CodeChanged() {
  occurring_ = OccurringFunctionTags(state_.Code);
}

}  // namespace

Text EvaluateTags(TextView code, TextView path, TextView fileName, TextView defaultText,
                  EvaluationContext& context) {
  Evaluation evaluation{{path, fileName, defaultText}, context};
  std::vector<Rewriting> rewritings;  // the outermost first
  rewritings.emplace_back(Text(code), evaluation);
  while (true) {
    if (rewritings.back().Run()) {
      Text inner = rewritings.back().TakeInner();
      rewritings.emplace_back(std::move(inner), evaluation);
      continue;
    }
    Text value = rewritings.back().TakeCode();
    rewritings.pop_back();
    if (rewritings.empty()) {
      return value;
    }
    rewritings.back().FinishTag(std::move(value));
  }
}

}  // namespace vorlane
