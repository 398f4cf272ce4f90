#include "ui/easy_button.h"

#include <QEvent>
#include <QKeySequence>

#include "platform/failure.h"
#include "platform/vendor.h"
#include "platform/wave_sound.h"
#include "ui/easy_button_accessible.h"

namespace vorlane {

namespace {

constexpr int CustomPointer = 99;
constexpr std::uint64_t LargestSoundFile = 16'000'000;

}  // namespace

EasyButton::EasyButton(const EasyButtonServices& services, QWidget* parent)
    : QWidget(parent), services_(services), tmrMain_(new QTimer(this)) {
  constexpr QSize DesignSize(156, 47);
  constexpr int TickMilliseconds = 10;
  LetAssistivePressEasyButtons();
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  tmrMain_->setObjectName(QStringLiteral("tmrMain"));
  tmrMain_->setInterval(TickMilliseconds);
  tmrMain_->setTimerType(Qt::PreciseTimer);
  QObject::connect(tmrMain_, &QTimer::timeout, this, [this] { tmrMain_Timer(); });
  resize(DesignSize);
  SizeChanged();
}

void EasyButton::SetAccessKey(const QString& newKey) {
  accessKey_ = newKey;
  GrabAccessKeys();
  PropertyChanged("AccessKey");
}

void EasyButton::GrabAccessKeys() {
  for (const int shortcut : shortcuts_) {
    releaseShortcut(shortcut);
  }
  shortcuts_.clear();
  for (const QChar key : accessKey_) {
    const QKeyCombination keys(Qt::AltModifier, Qt::Key(key.toUpper().unicode()));
    shortcuts_.push_back(grabShortcut(QKeySequence(keys)));
    setShortcutAutoRepeat(shortcuts_.back(), false);
  }
}

void EasyButton::SetAlign(int newAlign) {
  align_ = newAlign;
  LookChanged("Align");
}

void EasyButton::SetBackColor(FormColour newBackColor) {
  backColor_ = newBackColor;
  LookChanged("BackColor");
}

void EasyButton::SetCaption(const QString& newCaption) {
  caption_ = newCaption;
  LookChanged("Caption");
}

void EasyButton::SetForeColor(FormColour newForeColor) {
  foreColor_ = newForeColor;
  LookChanged("ForeColor");
}

// The toolkit tells of a change of these two; a set to the value that is there counts as well.
void EasyButton::SetEnabled(bool newEnabled) {
  const bool before = isEnabled();
  setEnabled(newEnabled);
  if (isEnabled() == before) {
    LookChanged("Enabled");
  }
}

void EasyButton::SetFont(const QFont& newFont) {
  const QFont before = font();
  setFont(newFont);
  if (font() == before) {
    LookChanged("Font");
  }
}

void EasyButton::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  switch (event->type()) {
    case QEvent::EnabledChange:
      LookChanged("Enabled");
      break;
    case QEvent::FontChange:
      LookChanged("Font");
      break;
    case QEvent::PaletteChange:
      DrawState(drawState_);  // no property: the desktop has other colours
      break;
    default:
      break;
  }
}

void EasyButton::SetStandInCaption(const QString& caption) {
  standIn_ = caption;
  DrawState(drawState_);
}

void EasyButton::SetMouseIcon(const QImage& newMouseIcon) {
  mouseIcon_ = newMouseIcon;
  ShowPointer();
  PropertyChanged("MouseIcon");
}

void EasyButton::SetMousePointer(int newMousePointer) {
  mousePointer_ = newMousePointer;
  ShowPointer();
  PropertyChanged("MousePointer");
}

void EasyButton::ShowPointer() {
  constexpr Qt::CursorShape shapes[] = {Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
                                        Qt::ArrowCursor,   Qt::SizeAllCursor,   Qt::SizeBDiagCursor,
                                        Qt::SizeVerCursor, Qt::SizeFDiagCursor, Qt::SizeHorCursor,
                                        Qt::UpArrowCursor, Qt::WaitCursor,      Qt::ForbiddenCursor,
                                        Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor};
  constexpr int count = static_cast<int>(std::size(shapes));
  if (mousePointer_ == CustomPointer && !mouseIcon_.isNull()) {
    setCursor(QCursor(QPixmap::fromImage(mouseIcon_)));
  } else if (mousePointer_ >= 1 && mousePointer_ <= count) {
    setCursor(shapes[mousePointer_ - 1]);
  } else {
    unsetCursor();
  }
}

void EasyButton::GetBytes() {
  soundBytes_ = BuiltInClick();
}

void EasyButton::SetUseSound(UsedSound newData) {
  useSound_ = newData;
  PropertyChanged("UseSound");
}

void EasyButton::SetSoundFileName(const Text& name) {
  soundFileName_.clear();
  if (Trim(name).empty()) {
    useSound_ = UsedSound::None;
  } else if (!HiddenFileExists(services_.Files, name)) {
    useSound_ = UsedSound::None;
    services_.Prompts.Show(BoxIcon::Stop, ApplicationTitle,
                           DescriptionOf(static_cast<int>(ErrorNumber::FileNotFound)));
  } else {
    soundFileName_ = name;
    LoadSound();
  }
  PropertyChanged("SoundFileName");
}

// Reads the sound's file; without a file that can be read the sound stays as it is.
void EasyButton::LoadSound() {
  Attempt([this] {
    if (services_.Files.StatusOf(soundFileName_).Size <= LargestSoundFile) {
      soundBytes_ = services_.Files.ReadFileBytes(soundFileName_);
    }
  });
}

void EasyButton::PlayButtonSound() {
  if (useSound_ > UsedSound::None) {
    services_.Sounds.Play(soundBytes_);
  }
}

void EasyButton::PropertyChanged(const char* name) {
  if (OnPropertyChanged) {
    OnPropertyChanged(QLatin1String(name));
  }
}

void EasyButton::LookChanged(const char* name) {
  PropertyChanged(name);
  Clear();
  DrawCurrentState();
}

}  // namespace vorlane
