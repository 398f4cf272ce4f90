#include "engine/literal_evaluator.h"

#include <tuple>
#include <vector>

#include "engine/literal_routines.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/letter_case.h"
#include "platform/numbers.h"

namespace vorlane {

using namespace literal;

namespace {

const std::vector<Text> OrderedTags = {
    u"<MID>",           u"<TRY>",     u"<PROPERCASE>",     u"<LOWERCASE>",      u"<UPPERCASE>",
    u"<MAKEEXTENSION>", u"<REPLACE>", u"<LEFTTRIM>",       u"<RIGHTTRIM>",      u"<CREATEFOLDER>",
    u"<MOVE>",          u"<ASCII>",   u"<OLDESTDATETIME>", u"<NEWESTDATETIME>", u"<IMAGEEXIFTAG>",
};

struct LimitPassed {};

bool HoldsTag(const Text& text) {
  for (const Text& tag : OrderedTags) {
    if (InStr(1, text, tag) > 0) {
      return true;
    }
  }
  return false;
}

class LiteralEvaluation {
 public:
  LiteralEvaluation(Text code, const Text& path, const Text& fileName, const Text& defaultText,
                    EvaluationContext& context, LiteralLimits& limits)
      : code_(std::move(code)),
        path_(path),
        fileName_(fileName),
        defaultText_(defaultText),
        context_(context),
        limits_(limits) {}

  Text Value() {
    while (HoldsTag(code_)) {
      if (--limits_.PassesLeft < 0 || code_.size() > limits_.LongestCode) {
        throw LimitPassed();
      }
      const auto before = Everything();
      for (const Text& tag : OrderedTags) {
        OneTag(tag);
        if (InStr(1, code_, u"<") == 0 || InStr(1, code_, u">") == 0) {
          return code_;
        }
      }
      if (Everything() == before) {
        return code_;
      }
    }
    return code_;
  }

 private:
  std::tuple<Text, Text, int, int, int, Text, Text, std::vector<Text>> Everything() const {
    return {code_, result_, occurrence_, openPos_, closePos_, inner_, savedInner_, fields_};
  }

  int FindClosing(const Text& tag) {
    if (code_.size() < tag.size()) {
      return 0;
    }
    int from = 1;
    while (true) {
      const int pos = Int16(InStr(from, code_, Closing(tag)));
      if (pos == 0) {
        return 0;
      }
      const Text prefix = Mid(code_, 1, pos + Length(tag) + 2);
      const int opens = Count(prefix, tag, 1);
      const int closes = Count(prefix, Closing(tag), 2);
      from = Int16(pos + 1);
      context_.Loop.Yield();
      if (opens == closes) {
        return pos;
      }
    }
  }

  void OneTag(const Text& tag) {
    Attempt([&] { openPos_ = Int16(InStr(1, code_, tag)); });
    if (openPos_ > 0) {
      Attempt([&] { closePos_ = FindClosing(tag); });
    }
    if (openPos_ > 0 && closePos_ < 1) {
      code_ = ReplaceSome(code_, tag, u"", -1);
    }
    if (openPos_ <= 0 || openPos_ >= closePos_) {
      return;
    }
    Attempt([&] {
      openPos_ = Int16(openPos_ + Length(tag));
      inner_ = Mid(code_, openPos_, closePos_ - openPos_);
      savedInner_ = inner_;
    });
    if (HoldsTag(inner_)) {
      inner_ = LiteralEvaluation(inner_, path_, fileName_, defaultText_, context_, limits_).Value();
    }
    Evaluate(tag);
    code_ = ReplaceSome(code_, tag + savedInner_ + Closing(tag), result_, -1);
  }

  Text& F(std::size_t index) {
    if (index >= fields_.size()) {
      Fail();
    }
    return fields_[index];
  }

  void Evaluate(const Text& tag) {
    if (tag == u"<MID>") {
      EvaluateMid();
    } else if (tag == u"<TRY>") {
      Attempt([&] { fields_ = Split(inner_, 2); });
      Attempt([&] {
        result_ =
            F(0).empty() || InStr(1, F(0), u"<") > 0 || InStr(1, F(0), u">") > 0 ? F(1) : F(0);
      });
    } else if (tag == u"<PROPERCASE>") {
      result_ = InProperCase(inner_);
    } else if (tag == u"<LOWERCASE>") {
      result_ = LowerCase(inner_);
    } else if (tag == u"<UPPERCASE>") {
      result_ = UpperCase(inner_);
    } else if (tag == u"<MAKEEXTENSION>") {
      result_ = inner_.empty() ? Text() : Mid(inner_, 1, 1) == u"." ? inner_ : u"." + inner_;
    } else if (tag == u"<REPLACE>") {
      EvaluateReplace();
    } else if (tag == u"<LEFTTRIM>") {
      EvaluateLeftTrim();
    } else if (tag == u"<RIGHTTRIM>") {
      EvaluateRightTrim();
    } else if (tag == u"<CREATEFOLDER>" || tag == u"<MOVE>") {
      EvaluateFolder();
    } else if (tag == u"<ASCII>") {
      Attempt([&] {
        const int code = Number16(inner_);
        if (code < 0 || code > 255) {
          Fail();
        }
        result_ = Text(1, CharacterOfByte(static_cast<std::uint8_t>(code)));
      });
    } else if (tag == u"<IMAGEEXIFTAG>") {
      Attempt([&] { result_ = context_.Facts.ExifValueByName(path_ + fileName_, inner_); });
    } else {
      EvaluateDates(tag == u"<OLDESTDATETIME>");
    }
  }

  void EvaluateMid() {
    Attempt([&] { fields_ = Split(inner_, 4); });
    Attempt([&] {
      if (F(0).empty()) {
        F(0) = defaultText_;
      }
    });
    bool hasMarker = false;
    if (!Attempt([&] { hasMarker = !F(1).empty(); })) {
      return;
    }
    if (hasMarker) {
      Attempt([&] { occurrence_ = IsNumeric(F(2)) ? Number16(F(2)) : 1; });
      Attempt([&] { result_ = FromMarker(F(0), F(1), occurrence_, F(3)); });
    } else {
      Attempt([&] {
        if (!IsNumeric(F(2))) {
          F(2) = u"1";
        }
      });
      Attempt([&] { result_ = FromPosition(F(0), Number16(F(2)), F(3)); });
    }
  }

  void EvaluateReplace() {
    Attempt([&] { fields_ = Split(inner_, 4); });
    Attempt([&] {
      if (F(0).empty()) {
        F(0) = defaultText_;
      }
    });
    Attempt([&] {
      if (!IsNumeric(F(3))) {
        F(3) = u"-1";
      }
    });
    Attempt([&] {
      const double number = *ReadNumber(F(3));
      if (number > 2147483647.0 || number < -2147483648.0 || Number32(F(3)) < -1) {
        F(3) = u"-1";
      }
    });
    Attempt([&] { result_ = ReplaceSome(F(0), F(1), F(2), static_cast<int>(Number32(F(3)))); });
  }

  void EvaluateLeftTrim() {
    Attempt([&] { fields_ = Split(inner_, 4); });
    Attempt([&] {
      if (F(0).empty()) {
        return;
      }
      const int length = Length(F(0));
      Attempt([&] {
        if (!F(1).empty()) {
          const int at = Int16(InStr(1, F(0), F(1)));
          result_ = at == 0 ? Text() : Mid(F(0), at, length);
        }
      });
      Attempt([&] {
        if (!F(2).empty()) {
          if (!IsNumeric(F(2))) {
            F(2) = u"0";
          }
          long long n = Number32(F(2));
          n = n < 0 ? 0 : n;
          n = n > length ? length : n;
          result_ = Mid(F(0), static_cast<int>(n) + 1, length);
        }
      });
      Attempt([&] {
        if (!F(3).empty()) {
          if (!IsNumeric(F(3))) {
            F(3) = u"0";
          }
          long long n = Number32(F(3));
          n = n < 0 ? 0 : n;
          result_ = n >= length ? F(0) : Mid(F(0), length - static_cast<int>(n) + 1, length);
        }
      });
    });
    FinishTrim();
  }

  void EvaluateRightTrim() {
    Attempt([&] { fields_ = Split(inner_, 4); });
    Attempt([&] {
      if (F(0).empty()) {
        return;
      }
      const int length = Length(F(0));
      Attempt([&] {
        if (!F(1).empty()) {
          int last = 0;
          for (int at = InStr(1, F(0), F(1)); at > 0; at = InStr(at + 1, F(0), F(1))) {
            last = Int16(at);
          }
          result_ = last == 0 ? Text() : Mid(F(0), 1, last + Length(F(1)) - 1);
        }
      });
      Attempt([&] {
        if (!F(2).empty()) {
          if (!IsNumeric(F(2))) {
            F(2) = u"0";
          }
          long long n = Number32(F(2));
          n = n > length ? length : n;
          result_ = n < 0 ? F(0) : Mid(F(0), 1, length - static_cast<int>(n));
        }
      });
      Attempt([&] {
        if (!F(3).empty()) {
          if (!IsNumeric(F(3))) {
            F(3) = u"0";
          }
          long long n = Number32(F(3));
          n = n < 0 ? 0 : n;
          result_ = n >= length ? F(0) : Mid(F(0), 1, static_cast<int>(n));
        }
      });
    });
    FinishTrim();
  }

  void FinishTrim() {
    Attempt([&] {
      if (F(0).empty()) {
        result_ = u"";
      }
    });
    Attempt([&] {
      if (result_.empty()) {
        result_ = F(0);
      }
    });
  }

  void EvaluateFolder() {
    const bool windows = context_.Paths == PathStyle::Windows;
    const Text separator = windows ? u"\\" : u"/";
    Attempt([&] {
      const bool rooted = windows ? Mid(inner_, 2, 2) == u":\\" : Mid(inner_, 1, 1) == u"/";
      const Text folder = windows ? inner_ : ReplaceSome(inner_, u"\\", u"/", -1);
      result_ = rooted ? folder : path_ + folder;
    });
    Attempt([&] {
      if (Mid(result_, Length(result_), 1) != separator) {
        result_ += separator;
      }
    });
    result_ = ReplaceSome(result_, separator + separator, separator, -1);
  }

  void EvaluateDates(bool oldest) {
    Attempt([&] { fields_ = Split(inner_, 2); });
    Attempt([&] {
      const DateTime first = DateOf(F(0));
      const DateTime second = DateOf(F(1));
      result_ = (oldest ? first < second : first > second) ? F(0) : F(1);
    });
    if (!result_.empty()) {
      return;
    }
    Attempt([&] {
      if (IsDate(F(0))) {
        result_ = F(0);
      } else if (IsDate(F(1))) {
        result_ = F(1);
      }
    });
  }

  Text code_;
  const Text& path_;
  const Text& fileName_;
  const Text& defaultText_;
  EvaluationContext& context_;
  LiteralLimits& limits_;

  Text result_;
  int occurrence_ = 0;
  int openPos_ = 0;
  int closePos_ = 0;
  Text inner_;
  Text savedInner_;
  std::vector<Text> fields_;
};

}  // namespace

std::optional<Text> LiterallyEvaluate(const Text& code, const Text& path, const Text& fileName,
                                      const Text& defaultText, EvaluationContext& context,
                                      LiteralLimits& limits) {
  try {
    return LiteralEvaluation(code, path, fileName, defaultText, context, limits).Value();
  } catch (const LimitPassed&) {
    return std::nullopt;
  }
}

}  // namespace vorlane
