// Sounds on the user's speakers: by the toolkit's multimedia library if the program was built with
// it, otherwise by the program `aplay`, otherwise not at all.
#pragma once

#include <memory>

#include "platform/sound_player.h"

namespace vorlane {

// Never null. Needs the application object when it plays.
std::unique_ptr<SoundPlayer> MakeSoundPlayer();

}  // namespace vorlane
