// The routines that the literal evaluator is made of. Positions count from 1, 0 is "nowhere".
#pragma once

#include <vector>

#include "platform/dates.h"
#include "platform/text.h"

namespace vorlane::literal {

// Throws RunError, as the others do where they can't go on.
[[noreturn]] void Fail();

// The value, if 16 bits hold it.
int Int16(long long value);

int Length(const Text& text);
int InStr(int from, const Text& text, const Text& part);
Text Mid(const Text& text, int start, int length);
Text ReplaceSome(const Text& text, const Text& from, const Text& to, int most);
Text Closing(const Text& tag);
int Count(const Text& text, const Text& part, int from);

bool IsDate(const Text& text);
DateTime DateOf(const Text& text);
int Number16(const Text& text);
long long Number32(const Text& text);

std::vector<Text> Split(const Text& text, int count);
Text FromPosition(const Text& text, int start, const Text& endMark);
Text FromMarker(const Text& text, const Text& mark, int count, const Text& endMark);
Text InProperCase(const Text& untrimmed);

}  // namespace vorlane::literal
