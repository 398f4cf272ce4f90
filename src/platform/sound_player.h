// Plays sounds. A sound that can't be played, for whatever reason, is silence and no failure.
#pragma once

#include <string_view>

namespace vorlane {

class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;

  // Begins a sound, given as a complete WAV image, and returns at once. A sound that still plays
  // makes room for it. The bytes needn't live longer than the call.
  virtual void Play(std::string_view wave) = 0;
};

}  // namespace vorlane
