// Keeps the sounds that are played.
#pragma once

#include <string>
#include <vector>

#include "platform/sound_player.h"

namespace vorlane {

class RecordingSounds final : public SoundPlayer {
 public:
  void Play(std::string_view wave) override { Played.emplace_back(wave); }

  std::vector<std::string> Played;
};

}  // namespace vorlane
