#include "engine/function_values.h"

#include <algorithm>
#include <functional>

#include "engine/mid.h"
#include "engine/proper_case.h"
#include "engine/replacing.h"
#include "engine/split_fields.h"
#include "platform/code_page.h"
#include "platform/dates.h"
#include "platform/failure.h"
#include "platform/letter_case.h"
#include "platform/numbers.h"

namespace vorlane {
namespace {

// Throws RunError if the fields couldn't be split, or fewer were wanted then.
Text& Field(WorkingValues& values, std::size_t index) {
  if (index >= values.Fields.size()) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  return values.Fields[index];
}

template <typename Value>
Value ValueOr(ErrorNumber failure, std::optional<Value> value) {
  if (!value) {
    throw RunError(failure);
  }
  return *value;
}

void SplitStep(TextView inner, std::int16_t count, WorkingValues& values) {
  Attempt([&] { values.Fields = SplitFields(inner, count); });
}

void DefaultTextStep(TextView defaultText, WorkingValues& values) {
  Attempt([&] {
    if (Field(values, 0).empty()) {
      Field(values, 0) = defaultText;
    }
  });
}

void MidByMarker(WorkingValues& values) {
  Attempt([&] {
    const Text& number = Field(values, 2);
    values.Occurrence =
        IsNumeric(number) ? ValueOr(ErrorNumber::Overflow, ReadInt16(number)) : std::int16_t{1};
  });
  Attempt([&] {
    values.Result =
        MidFromMarker(Field(values, 0), Field(values, 1), values.Occurrence, Field(values, 3));
  });
}

void MidByPosition(WorkingValues& values) {
  Attempt([&] {
    if (!IsNumeric(Field(values, 2))) {
      Field(values, 2) = u"1";
    }
  });
  Attempt([&] {
    const auto start = ValueOr(ErrorNumber::Overflow, ReadInt16(Field(values, 2)));
    values.Result = MidFromPosition(Field(values, 0), start, Field(values, 3));
  });
}

void EvaluateMid(TextView inner, TextView defaultText, WorkingValues& values) {
  SplitStep(inner, 4, values);
  DefaultTextStep(defaultText, values);
  Attempt([&] { Field(values, 1).empty() ? MidByPosition(values) : MidByMarker(values); });
}

// A value that still holds an angle bracket is taken to be a keyword that couldn't be resolved.
void EvaluateTry(TextView inner, WorkingValues& values) {
  SplitStep(inner, 2, values);
  Attempt([&] {
    const Text& value = Field(values, 0);
    const bool isUsable = !value.empty() && value.find_first_of(u"<>") == Text::npos;
    values.Result = isUsable ? value : Field(values, 1);
  });
}

void EvaluateReplace(TextView inner, TextView defaultText, WorkingValues& values) {
  SplitStep(inner, 4, values);
  DefaultTextStep(defaultText, values);
  Attempt([&] {
    // What is no number, or none that fits, is taken for "all" like anything below -1.
    const auto most = ReadInt32(Field(values, 3));
    if (!most || *most < -1) {
      Field(values, 3) = u"-1";
    }
  });
  Attempt([&] {
    const auto most = ValueOr(ErrorNumber::Overflow, ReadInt32(Field(values, 3)));
    Text result = Field(values, 0);
    ReplaceUpTo(result, Field(values, 1), Field(values, 2), most);
    values.Result = std::move(result);
  });
}

// The three ways of cutting that the two trims share: each from the whole of the first field, so
// that the last one that is filled in wins.
struct Cuts {
  TextView (*AtMarker)(TextView text, TextView marker);
  TextView (*Dropping)(TextView text, std::int64_t count);
  TextView (*Keeping)(TextView text, std::int64_t count);
};

void CountedCutStep(TextView (*cut)(TextView, std::int64_t), std::size_t field,
                    WorkingValues& values) {
  Attempt([&] {
    Text& number = Field(values, field);
    if (number.empty()) {
      return;
    }
    if (!IsNumeric(number)) {
      number = u"0";
    }
    const std::int64_t count = ValueOr(ErrorNumber::Overflow, ReadInt32(number));
    const Text& text = Field(values, 0);
    const auto length = static_cast<std::int64_t>(text.size());
    values.Result = cut(text, std::clamp<std::int64_t>(count, 0, length));
  });
}

void EvaluateTrim(TextView inner, const Cuts& cuts, WorkingValues& values) {
  SplitStep(inner, 4, values);
  Attempt([&] {
    const Text& text = Field(values, 0);
    if (text.empty()) {
      values.Result.clear();
      return;
    }
    Attempt([&] {
      if (!Field(values, 1).empty()) {
        values.Result = cuts.AtMarker(text, Field(values, 1));
      }
    });
    CountedCutStep(cuts.Dropping, 2, values);
    CountedCutStep(cuts.Keeping, 3, values);
  });
  Attempt([&] {
    if (values.Result.empty()) {
      values.Result = Field(values, 0);
    }
  });
}

constexpr Cuts LeftCuts = {
    [](TextView text, TextView marker) {
      const Position at = PositionOf(text, marker);
      return at == 0 ? TextView() : text.substr(static_cast<std::size_t>(at) - 1);
    },
    [](TextView text, std::int64_t count) { return text.substr(static_cast<std::size_t>(count)); },
    [](TextView text, std::int64_t count) {
      return text.substr(text.size() - static_cast<std::size_t>(count));
    },
};

constexpr Cuts RightCuts = {
    [](TextView text, TextView marker) {
      const Position at = LastPositionOf(text, marker);
      return at == 0 ? TextView()
                     : text.substr(0, static_cast<std::size_t>(at) - 1 + marker.size());
    },
    [](TextView text, std::int64_t count) {
      return text.substr(0, text.size() - static_cast<std::size_t>(count));
    },
    [](TextView text, std::int64_t count) {
      return text.substr(0, static_cast<std::size_t>(count));
    },
};

// "<CREATEFOLDER>" and "<MOVE>".
void EvaluateFolder(TextView inner, TextView path, PathStyle style, WorkingValues& values) {
  Text folder(inner);
  if (style == PathStyle::Posix) {
    // Operations are written for both systems.
    std::replace(folder.begin(), folder.end(), u'\\', u'/');
  }
  values.Result = IsRooted(inner, style) ? folder : Text(path) + folder;
  if (!values.Result.empty()) {
    values.Result = EnsureTrailingSeparator(values.Result, style);
  }
  const Text separator(1, Separator(style));
  ReplaceAll(values.Result, separator + separator, separator);
}

void EvaluateAscii(TextView inner, WorkingValues& values) {
  Attempt([&] {
    const auto code = ValueOr(ErrorNumber::TypeMismatch, ReadInt16(inner));
    if (code < 0 || code > 255) {
      throw RunError(ErrorNumber::InvalidArgument);
    }
    values.Result = CharacterOfByte(static_cast<std::uint8_t>(code));
  });
}

// `isFirst` tells whether the first date is the one wanted; a tie gives the second.
template <typename IsFirst>
void EvaluateDates(TextView inner, IsFirst isFirst, WorkingValues& values) {
  SplitStep(inner, 2, values);
  Attempt([&] {
    const auto first = ValueOr(ErrorNumber::TypeMismatch, ReadDate(Field(values, 0)));
    const auto second = ValueOr(ErrorNumber::TypeMismatch, ReadDate(Field(values, 1)));
    values.Result = Field(values, isFirst(first, second) ? 0 : 1);
  });
  if (!values.Result.empty()) {
    return;
  }
  Attempt([&] {
    for (const std::size_t field : {0, 1}) {
      if (ReadDate(Field(values, field))) {
        values.Result = Field(values, field);
        return;
      }
    }
  });
}

}  // namespace

void EvaluateFunction(FunctionName name, TextView inner, const EvaluatedEntry& entry,
                      EvaluationContext& context, WorkingValues& values) {
  switch (name) {
    case FunctionName::Mid:
      return EvaluateMid(inner, entry.DefaultText, values);
    case FunctionName::Try:
      return EvaluateTry(inner, values);
    case FunctionName::ProperCase:
      values.Result = ProperCase(inner);
      return;
    case FunctionName::LowerCase:
      values.Result = LowerCase(inner);
      return;
    case FunctionName::UpperCase:
      values.Result = UpperCase(inner);
      return;
    case FunctionName::MakeExtension:
      values.Result = inner.empty() || inner.starts_with(u'.') ? Text(inner) : u"." + Text(inner);
      return;
    case FunctionName::Replace:
      return EvaluateReplace(inner, entry.DefaultText, values);
    case FunctionName::LeftTrim:
      return EvaluateTrim(inner, LeftCuts, values);
    case FunctionName::RightTrim:
      return EvaluateTrim(inner, RightCuts, values);
    case FunctionName::CreateFolder:
    case FunctionName::Move:
      return EvaluateFolder(inner, entry.Path, context.Paths, values);
    case FunctionName::Ascii:
      return EvaluateAscii(inner, values);
    case FunctionName::OldestDateTime:
      return EvaluateDates(inner, std::less<>(), values);
    case FunctionName::NewestDateTime:
      return EvaluateDates(inner, std::greater<>(), values);
    case FunctionName::ImageExifTag:
      Attempt([&] {
        values.Result =
            context.Facts.ExifValueByName(Text(entry.Path).append(entry.FileName), inner);
      });
      return;
  }
}

}  // namespace vorlane
