// The function tags: which there are, in which order they are looked at, and where one of them
// closes. All searches are exact and case-sensitive.
#pragma once

#include <array>
#include <cstdint>

#include "engine/positions.h"
#include "platform/message_loop.h"
#include "platform/text.h"

namespace vorlane {

enum class FunctionName : std::uint8_t {
  Mid,
  Try,
  ProperCase,
  LowerCase,
  UpperCase,
  MakeExtension,
  Replace,
  LeftTrim,
  RightTrim,
  CreateFolder,
  Move,
  Ascii,
  OldestDateTime,
  NewestDateTime,
  ImageExifTag,
};

struct FunctionTag {
  FunctionName Name;
  TextView Opening;
  TextView Closing;  // "</" and the opening tag without its first character
};

// The order is the order of evaluation.
inline constexpr std::array<FunctionTag, 15> FunctionTags = {{
    {FunctionName::Mid, u"<MID>", u"</MID>"},
    {FunctionName::Try, u"<TRY>", u"</TRY>"},
    {FunctionName::ProperCase, u"<PROPERCASE>", u"</PROPERCASE>"},
    {FunctionName::LowerCase, u"<LOWERCASE>", u"</LOWERCASE>"},
    {FunctionName::UpperCase, u"<UPPERCASE>", u"</UPPERCASE>"},
    {FunctionName::MakeExtension, u"<MAKEEXTENSION>", u"</MAKEEXTENSION>"},
    {FunctionName::Replace, u"<REPLACE>", u"</REPLACE>"},
    {FunctionName::LeftTrim, u"<LEFTTRIM>", u"</LEFTTRIM>"},
    {FunctionName::RightTrim, u"<RIGHTTRIM>", u"</RIGHTTRIM>"},
    {FunctionName::CreateFolder, u"<CREATEFOLDER>", u"</CREATEFOLDER>"},
    {FunctionName::Move, u"<MOVE>", u"</MOVE>"},
    {FunctionName::Ascii, u"<ASCII>", u"</ASCII>"},
    {FunctionName::OldestDateTime, u"<OLDESTDATETIME>", u"</OLDESTDATETIME>"},
    {FunctionName::NewestDateTime, u"<NEWESTDATETIME>", u"</NEWESTDATETIME>"},
    {FunctionName::ImageExifTag, u"<IMAGEEXIFTAG>", u"</IMAGEEXIFTAG>"},
}};

// Bit i is set if the opening tag of FunctionTags[i] occurs in the text. Closing tags alone don't
// count.
std::uint32_t OccurringFunctionTags(TextView text);

inline bool ContainsFunctionTag(TextView text) {
  return OccurringFunctionTags(text) != 0;
}

// Without overlap: no tag can overlap itself.
int CountOpeningTags(TextView text, const FunctionTag& tag);

// The position of the first closing tag up to whose end there are as many closing as opening tags
// of this kind; 0 if there is none. A closing tag at the very start of the code isn't counted, so
// that it balances by itself. Yields once for each closing tag examined. Throws RunError Overflow
// if a closing tag stands too far behind. Cost: linear in the code.
Position FindClosingTag(TextView code, const FunctionTag& tag, MessageLoop& loop);

}  // namespace vorlane
