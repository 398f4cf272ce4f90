// Text to the toolkit's strings and back. Both are UTF-16; half of a surrogate pair passes as it
// is.
#pragma once

#include <QString>

#include "platform/text.h"

namespace vorlane {

inline QString ToQString(TextView text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

// For one line on the screen: a control character shows as its picture and breaks no line.
inline QString ToLine(TextView text) {
  constexpr char16_t ControlPictures = u'\u2400';
  QString line = ToQString(text);
  for (QChar& character : line) {
    if (character < u' ') {
      character = QChar(static_cast<char16_t>(ControlPictures + character.unicode()));
    }
  }
  return line;
}

inline Text ToText(const QString& string) {
  return {reinterpret_cast<const char16_t*>(string.utf16()),
          static_cast<std::size_t>(string.size())};
}

}  // namespace vorlane
