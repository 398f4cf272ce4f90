// Where a button's caption stands, and the flags that say so.
#pragma once

namespace vorlane {

// From 0 to 8: centred, left, right, and in each of these the middle, the top, the bottom. The
// result is made of 1 (centred), 2 (right), 4 (vertically centred) and 8 (bottom); any other number
// gives 0, which is the top left corner.
int AlignToDrawFlags(int align);

// Added to each of them: one line, and not cut off at the rectangle.
inline constexpr int OneUncutLine = 0x120;

// The same as the toolkit's own flags. "&" underlines the character behind it.
int ToToolkitFlags(int drawFlags);

}  // namespace vorlane
