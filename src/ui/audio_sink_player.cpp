#include "ui/audio_sink_player.h"

#ifdef VORLANE_HAS_MULTIMEDIA

#include <QAudioDevice>
#include <QMediaDevices>

#include "platform/wave_sound.h"

namespace vorlane {

void AudioSinkPlayer::Play(std::string_view wave) {
  sink_.reset();
  samples_.close();
  const auto samples = SamplesOfWave(wave);
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  QAudioFormat format;
  format.setSampleRate(PlayedRate);
  format.setChannelCount(PlayedChannels);
  format.setSampleFormat(QAudioFormat::Int16);
  if (samples.empty() || device.isNull() || !device.isFormatSupported(format)) {
    return;
  }
  samples_.setData(reinterpret_cast<const char*>(samples.data()),
                   static_cast<int>(samples.size() * sizeof(samples.front())));
  samples_.open(QIODevice::ReadOnly);
  sink_ = std::make_unique<QAudioSink>(device, format);
  // A device that waits for more would cost time for as long as the program runs.
  QObject::connect(sink_.get(), &QAudioSink::stateChanged, sink_.get(),
                   [sink = sink_.get()](QAudio::State state) {
                     if (state == QAudio::IdleState) {
                       sink->stop();
                     }
                   });
  sink_->start(&samples_);
}

}  // namespace vorlane

#endif
