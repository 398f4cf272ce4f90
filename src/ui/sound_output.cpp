#include "ui/sound_output.h"

#include "ui/aplay_player.h"
#include "ui/audio_sink_player.h"

namespace vorlane {

std::unique_ptr<SoundPlayer> MakeSoundPlayer() {
#ifdef VORLANE_HAS_MULTIMEDIA
  return std::make_unique<AudioSinkPlayer>();
#else
  return std::make_unique<AplayPlayer>();
#endif
}

}  // namespace vorlane
