// Plays sounds by the toolkit's multimedia library. Only where the program is built with it.
#pragma once

#ifdef VORLANE_HAS_MULTIMEDIA

#include <QAudioSink>
#include <QBuffer>
#include <memory>

#include "platform/sound_player.h"

namespace vorlane {

class AudioSinkPlayer final : public SoundPlayer {
 public:
  // Silence where there is no device that takes 16-bit samples.
  void Play(std::string_view wave) override;

 private:
  QBuffer samples_;
  std::unique_ptr<QAudioSink> sink_;  // reads the samples, so it goes first
};

}  // namespace vorlane

#endif
