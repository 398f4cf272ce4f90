// A button's properties in a store.
#include <QApplication>

#include "ui/easy_button.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr int DefaultAlign = 5;
constexpr uint DefaultBackColor = 0xE0E0E0;
constexpr int DefaultSound = static_cast<int>(UsedSound::BuiltInClick);

QString DefaultCaption() {
  return QStringLiteral("Command");
}

QVariant OfFont(const QFont& font) {
  return QVariant::fromValue(font);
}

QVariant OfImage(const QImage& image) {
  return image.isNull() ? QVariant() : QVariant::fromValue(image);
}

// The character behind the first "&"; nothing without one.
QString KeyInCaption(const QString& caption) {
  const auto mark = caption.indexOf(u'&');
  return mark < 0 ? QString() : caption.mid(mark + 1, 1);
}

}  // namespace

void EasyButton::ReadProperties(PropertyStore& store) {
  const auto read = [&store](const char* name, const QVariant& fallback) {
    return store.ReadProperty(QLatin1String(name), fallback);
  };
  align_ = read("Align", DefaultAlign).toInt();
  caption_ = read("Caption", DefaultCaption()).toString();
  setFont(read("Font", OfFont(AmbientFont())).value<QFont>());
  backColor_ = read("BackColor", DefaultBackColor).toUInt();
  foreColor_ = read("ForeColor", 0U).toUInt();
  setEnabled(read("Enabled", true).toBool());
  const auto picture = read("Picture", {}).value<QImage>();
  mouseIcon_ = read("MouseIcon", {}).value<QImage>();
  mousePointer_ = read("MousePointer", 0).toInt();
  accessKey_ = read("AccessKey", QString()).toString();
  useSound_ = static_cast<UsedSound>(read("UseSound", DefaultSound).toInt());
  soundFileName_ = ToText(read("SoundFileName", QString()).toString());
  TakeStoredSound();
  ShowPointer();
  SetPicture(picture);
  if (!hasPicture_) {
    Clear();
    DrawStateNormal();
  }
  if (isEnabled() && caption_.contains(u'&')) {
    accessKey_ = KeyInCaption(caption_);
  }
  GrabAccessKeys();
}

// What a control has that was given no font of its own.
QFont EasyButton::AmbientFont() const {
  return parentWidget() != nullptr ? parentWidget()->font() : QApplication::font();
}

void EasyButton::TakeStoredSound() {
  if (useSound_ == UsedSound::BuiltInClick) {
    GetBytes();
  } else if (useSound_ == UsedSound::File && Trim(soundFileName_).empty()) {
    useSound_ = UsedSound::None;
  } else if (useSound_ == UsedSound::File) {
    LoadSound();
  }
}

void EasyButton::WriteProperties(PropertyStore& store) const {
  const auto write = [&store](const char* name, const QVariant& value, const QVariant& fallback) {
    store.WriteProperty(QLatin1String(name), value, fallback);
  };
  write("Caption", caption_, DefaultCaption());
  write("UseSound", static_cast<int>(useSound_), DefaultSound);
  write("SoundFileName", ToQString(soundFileName_), QString());
  write("Align", align_, DefaultAlign);
  write("Picture", OfImage(picture_), {});
  write("BackColor", backColor_, DefaultBackColor);
  write("Font", OfFont(font()), OfFont(AmbientFont()));
  write("ForeColor", foreColor_, 0U);
  write("MouseIcon", OfImage(mouseIcon_), {});
  write("MousePointer", mousePointer_, 0);
  write("Enabled", isEnabled(), true);
  write("AccessKey", accessKey_, QString());
}

}  // namespace vorlane
