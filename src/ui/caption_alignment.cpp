#include "ui/caption_alignment.h"

#include <Qt>

namespace vorlane {

namespace {

constexpr int Centre = 1;
constexpr int Right = 2;
constexpr int Middle = 4;
constexpr int Bottom = 8;
constexpr int OneLine = 0x20;
constexpr int Uncut = 0x100;

static_assert((OneLine | Uncut) == OneUncutLine);

}  // namespace

int AlignToDrawFlags(int align) {
  constexpr int flags[] = {Centre | Middle, Centre,         Centre | Bottom, Middle,        0,
                           Bottom,          Right | Middle, Right,           Right | Bottom};
  return align >= 0 && align < 9 ? flags[align] : 0;
}

int ToToolkitFlags(int drawFlags) {
  const auto has = [drawFlags](int flag) { return (drawFlags & flag) != 0; };
  int flags = Qt::TextShowMnemonic;
  flags |= has(Centre) ? Qt::AlignHCenter : has(Right) ? Qt::AlignRight : Qt::AlignLeft;
  flags |= has(Middle) ? Qt::AlignVCenter : has(Bottom) ? Qt::AlignBottom : Qt::AlignTop;
  flags |= has(OneLine) ? Qt::TextSingleLine : 0;
  flags |= has(Uncut) ? Qt::TextDontClip : 0;
  return flags;
}

}  // namespace vorlane
