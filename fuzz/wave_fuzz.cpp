// Any bytes as a WAV image: whole frames come out of it, no more than a sound may have, whatever
// size it states.
// Seeds: fuzz/corpus/wave.
#include <string>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "platform/wave_sound.h"

using namespace vorlane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string wave = FuzzInput(data, size).Rest();
  const auto samples = SamplesOfWave(wave);
  constexpr std::size_t most = std::size_t{LongestSoundSeconds} * PlayedRate * PlayedChannels;
  Require(samples.size() % PlayedChannels == 0 && samples.size() <= most);
  if (wave.size() >= 8) {
    wave.replace(4, 4, "\xFF\xFF\xFF\xFF");
    Require(SamplesOfWave(wave) == samples);
  }
  return 0;
}
