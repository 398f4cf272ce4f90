#include "ui/aplay_player.h"

#include <QStandardPaths>

#include "platform/wave_sound.h"

namespace vorlane {

AplayPlayer::~AplayPlayer() = default;

// A player that holds the sound card may take its time to end: nobody waits for it.
void AplayPlayer::Stop() {
  if (process_) {
    process_->kill();
    if (process_->state() != QProcess::NotRunning) {
      QObject::connect(process_.get(), &QProcess::finished, process_.get(), &QObject::deleteLater);
      process_.release();
    }
    process_.reset();
  }
}

void AplayPlayer::Play(std::string_view wave) {
  Stop();
  const auto samples = SamplesOfWave(wave);
  const QString program = QStandardPaths::findExecutable(QStringLiteral("aplay"));
  if (samples.empty() || program.isEmpty()) {
    return;
  }
  process_ = std::make_unique<QProcess>();
  process_->setStandardOutputFile(QProcess::nullDevice());
  process_->setStandardErrorFile(QProcess::nullDevice());
  const QString format =
      Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? QStringLiteral("S16_LE") : QStringLiteral("S16_BE");
  process_->start(program,
                  {QStringLiteral("-q"), QStringLiteral("-t"), QStringLiteral("raw"),
                   QStringLiteral("-f"), format, QStringLiteral("-r"), QString::number(PlayedRate),
                   QStringLiteral("-c"), QString::number(PlayedChannels)});
  process_->write(reinterpret_cast<const char*>(samples.data()),
                  static_cast<qint64>(samples.size() * sizeof(samples.front())));
  process_->closeWriteChannel();
}

}  // namespace vorlane
