// Plays sounds by the program `aplay`, which takes samples from its input.
#pragma once

#include <QProcess>
#include <memory>

#include "platform/sound_player.h"

namespace vorlane {

class AplayPlayer final : public SoundPlayer {
 public:
  // Ends a sound that still plays.
  ~AplayPlayer() override;

  // Silence where there is no `aplay` in PATH.
  void Play(std::string_view wave) override;

 private:
  void Stop();

  std::unique_ptr<QProcess> process_;
};

}  // namespace vorlane
