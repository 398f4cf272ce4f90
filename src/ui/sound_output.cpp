#include "ui/sound_output.h"

#include "ui/aplay_player.h"

namespace vorlane {

std::unique_ptr<SoundPlayer> MakeSoundPlayer() {
  return std::make_unique<AplayPlayer>();
}

}  // namespace vorlane
