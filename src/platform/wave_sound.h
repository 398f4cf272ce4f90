// WAV images: what a player needs of them, and the click that buttons have of their own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// What every sound is turned into: 16-bit samples, left and right in turn.
inline constexpr int PlayedRate = 44'100;
inline constexpr int PlayedChannels = 2;

// A longer sound is cut off here, so that a few bytes that claim an odd rate can't fill the memory.
inline constexpr int LongestSoundSeconds = 60;

// The samples of a WAV image; empty for one that can't be played. Takes PCM of 8, 16, 24 and 32
// bits with 1 to 8 channels (a single one goes to both sides, of more the first two count) at 1000
// to 384,000 samples a second. The size stated behind "RIFF" isn't looked at, and data that end
// early are played as far as they go: writers get both wrong.
std::vector<std::int16_t> SamplesOfWave(std::string_view wave);

// A click of a few milliseconds as a WAV image of 170 bytes. It states a wrong size and ends in the
// middle of a chunk.
std::string BuiltInClick();

}  // namespace vorlane
