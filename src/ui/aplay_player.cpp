#include "ui/aplay_player.h"

#include <QStandardPaths>
#include <span>

#include "platform/wave_sound.h"

namespace vorlane {

AplayPlayer::~AplayPlayer() {
  constexpr int MostMilliseconds = 1000;
  if (process_) {
    process_->kill();
    process_->waitForFinished(MostMilliseconds);
  }
}

// A player that holds the sound card may take its time to end: nobody waits for it.
void AplayPlayer::Stop() {
  if (!process_) {
    return;
  }
  process_->kill();
  if (process_->state() == QProcess::NotRunning) {
    process_.reset();
  } else {
    QProcess* process = process_.release();
    QObject::connect(process, &QProcess::stateChanged, process,
                     [process](QProcess::ProcessState state) {
                       if (state == QProcess::NotRunning) {
                         process->deleteLater();
                       }
                     });
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
  const QByteArrayView bytes(std::as_bytes(std::span(samples)));
  process_->write(bytes.data(), bytes.size());
  process_->closeWriteChannel();
}

}  // namespace vorlane
