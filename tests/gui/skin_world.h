// A main window before it is loaded, and a folder for its skin and sounds.
#pragma once

#include "gui/window_world.h"
#include "ui/skin.h"

namespace vorlane {

inline QByteArray BytesOf(const QImage& picture, const char* format = "PNG") {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(picture.save(&buffer, format));
  return bytes;
}

inline QImage Plain(int width, int height, QColor colour = Qt::red) {
  QImage picture(width, height, QImage::Format_RGB32);
  picture.fill(colour);
  return picture;
}

// Red, green and blue, and a mask that is black all over.
inline QImage FourStrips(int width, int height) {
  QImage picture = Plain(width, 4 * height, Qt::black);
  QPainter painter(&picture);
  painter.fillRect(0, 0, width, height, Qt::red);
  painter.fillRect(0, height, width, height, Qt::green);
  painter.fillRect(0, 2 * height, width, height, Qt::blue);
  return picture;
}

struct SkinWorld {
  void Write(TextView name, const QByteArray& bytes) const {
    Folder.Write("Skin/" + ToQString(name).toStdString(), bytes.toStdString());
  }
  void Write(TextView name, const QImage& picture) const { Write(name, BytesOf(picture)); }
  // A picture of the right kind, such as no other test has.
  void WriteAny(const SkinFile& file) const {
    Write(file.FileName, file.Target == SkinTarget::Button ? FourStrips(40, 30) : Plain(200, 100));
  }
  void WriteAll() const {
    for (const SkinFile& file : SkinFiles) {
      WriteAny(file);
    }
  }
  Skin Take() { return {Window, Files, Folder.TextPath()}; }

  template <typename Control>
  Control& Find(std::string_view name) {
    auto* found = Window.findChild<Control*>(QString::fromLatin1(name.data()));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  bool HasPicture(const SkinFile& file) {
    switch (file.Target) {
      case SkinTarget::Form:
        return !Window.Background().Covered().isEmpty();
      case SkinTarget::Bar:
        return Find<ImageBar>(file.Control).HasPicture();
      case SkinTarget::Button:
        return !Find<EasyButton>(file.Control).Picture().isNull();
    }
    return false;
  }
  // The files whose pictures are shown.
  std::vector<Text> Shown() {
    std::vector<Text> names;
    for (const SkinFile& file : SkinFiles) {
      if (HasPicture(file)) {
        names.emplace_back(file.FileName);
      }
    }
    return names;
  }

  TemporaryFolder Folder;
  PosixFileSystem Files;
  RecordingPrompter Prompts;
  RecordingSounds Sounds;
  FrmMain Window{EasyButtonServices{Files, Prompts, Sounds}};
};

}  // namespace vorlane
