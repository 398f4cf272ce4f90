#include "engine/literal_routines.h"

#include "platform/failure.h"
#include "platform/letter_case.h"
#include "platform/numbers.h"

namespace vorlane::literal {

void Fail() {
  throw RunError(ErrorNumber::InvalidArgument);
}

int Int16(long long value) {
  if (value < -32768 || value > 32767) {
    Fail();
  }
  return static_cast<int>(value);
}

int Length(const Text& text) {
  return static_cast<int>(text.size());
}

// The place of a part, counted from 1; 0 for none.
int InStr(int from, const Text& text, const Text& part) {
  if (from < 1) {
    Fail();
  }
  for (int at = from; at + Length(part) - 1 <= Length(text); ++at) {
    if (text.compare(static_cast<std::size_t>(at - 1), part.size(), part) == 0) {
      return at;
    }
  }
  return 0;
}

Text Mid(const Text& text, int start, int length) {
  if (start < 1 || length < 0) {
    Fail();
  }
  return start > Length(text) ? Text() : text.substr(static_cast<std::size_t>(start - 1), length);
}

Text ReplaceSome(const Text& text, const Text& from, const Text& to, int most) {
  Text result;
  int at = 1;
  for (; !from.empty() && most != 0; --most) {
    const int hit = InStr(at, text, from);
    if (hit == 0) {
      break;
    }
    result += Mid(text, at, hit - at) + to;
    at = hit + Length(from);
  }
  return result + Mid(text, at, Length(text));
}

Text Closing(const Text& tag) {
  return u"</" + Mid(tag, 2, Length(tag));
}

int Count(const Text& text, const Text& part, int from) {
  int count = 0;
  for (int hit = InStr(from, text, part); hit > 0; hit = InStr(hit + 1, text, part)) {
    ++count;
  }
  return count;
}

bool IsDate(const Text& text) {
  return ReadDate(text).has_value();
}

DateTime DateOf(const Text& text) {
  if (!IsDate(text)) {
    Fail();
  }
  return *ReadDate(text);
}

int Number16(const Text& text) {
  if (!ReadInt16(text)) {
    Fail();
  }
  return *ReadInt16(text);
}

long long Number32(const Text& text) {
  if (!ReadInt32(text)) {
    Fail();
  }
  return *ReadInt32(text);
}

std::vector<Text> Split(const Text& text, int count) {
  if (count < 2) {
    return {};
  }
  std::vector<Text> fields(static_cast<std::size_t>(count) + 1);
  int start = 1;
  for (int i = 0; i <= count - 1; ++i) {
    int bar = Int16(InStr(start, text, u"|"));
    if (i == count - 2 && bar == 0) {
      bar = Int16(Length(text));
    }
    if (i == count - 1 && bar == 0) {
      bar = Int16(Length(text) + 1);
    }
    if (bar < start) {
      break;
    }
    fields[static_cast<std::size_t>(i)] = Mid(text, start, bar - start);
    start = Int16(bar + 1);
  }
  return fields;
}

Text FromPosition(const Text& text, int start, const Text& endMark) {
  int end = 0;
  if (!endMark.empty()) {
    end = Int16(InStr(Int16(start + 1), text, endMark));
    if (end < 2) {
      end = Int16(Length(text) + 1);
    }
  } else {
    end = Int16(Length(text) + 1);
  }
  return Text(Trim(Mid(text, start, end - start)));
}

Text FromMarker(const Text& text, const Text& mark, int count, const Text& endMark) {
  int begin = 0;
  int from = 1;
  for (int i = 1; i <= count; ++i) {
    const int hit = Int16(InStr(from, text, mark));
    if (hit > 0 && hit > begin) {
      begin = Int16(hit + Length(mark));
    } else if (begin == 0) {
      begin = 1;
    }
    from = Int16(hit + 1);
  }
  int end = 0;
  if (!endMark.empty()) {
    end = Int16(InStr(begin, text, endMark));
    if (end == 0) {
      end = Int16(Length(text) + 1);
    }
  } else {
    end = Int16(Length(text) + 1);
  }
  return Text(Trim(Mid(text, begin, end - begin)));
}

Text InProperCase(const Text& untrimmed) {
  const Text text(Trim(untrimmed));
  Text result;
  for (int at = 1; at <= Length(text); ++at) {
    const Text before = at == 1 ? Text(u" ") : Mid(text, at - 1, 1);
    const bool first =
        before == u"_" || before == u"-" || before == u"." || before == u"(" || before == u" ";
    result += first ? UpperCase(Mid(text, at, 1)) : LowerCase(Mid(text, at, 1));
  }
  return result;
}

}  // namespace vorlane::literal
