// One button on a form, with a disk in memory, and with ears and eyes for what it plays and shows.
// The mouse goes the way of a real one: through the window, with its grabs and its clicks.
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "support/memory_file_system.h"
#include "support/recording_prompter.h"
#include "support/recording_sounds.h"
#include "ui/easy_button.h"

namespace vorlane {

inline const QColor NormalColour(200, 10, 20);
inline const QColor HoverColour(20, 200, 30);
inline const QColor PressedColour(40, 50, 200);
inline const QColor NormalFrame(0xCF, 0xCF, 0xCF);  // of a button without a picture

// The strips of the tests' picture are 40 by 20 in these colours. The mask has a see-through border
// of 5 and is solid inside but for a place that is grey: that belongs to the button and isn't
// solid.
inline constexpr QSize StripSize(40, 20);
inline constexpr QPoint SolidPlace(30, 10);
inline constexpr QPoint GreyPlace(12, 10);
inline constexpr QPoint SeeThroughPlace(2, 2);
inline constexpr QPoint OutsidePlace(-20, 5);

// `remainder` rows lie below the strips.
QImage FourStrips(int remainder = 0);

class ButtonWorld {
 public:
  ButtonWorld();
  ~ButtonWorld();

  // Moves the pointer, in pixels of the button, whatever lies there.
  void PointAt(QPoint place);
  void Press(QPoint place, Qt::MouseButton button = Qt::LeftButton);
  void Release(QPoint place, Qt::MouseButton button = Qt::LeftButton);
  void Click(QPoint place, Qt::MouseButton button = Qt::LeftButton);
  void DoubleClick(QPoint place, Qt::MouseButton button = Qt::LeftButton);

  // What the button has drawn, without its outline.
  QImage Look() { return Button.grab().toImage().convertToFormat(QImage::Format_RGB32); }
  QColor ColourAt(QPoint place) { return Look().pixelColor(place); }

  // Lets events run until the button shows this colour at its middle; false after five seconds.
  bool Becomes(const QColor& colour);

  // The same for the state of a button without a picture, told by its top left corner.
  bool BecomesPlain(const QColor& corner);

  // Lets so many ticks of the button's timer pass; none if it stands still.
  void PassTicks(int count);

  bool IsTicking() { return Timer().isActive(); }
  QTimer& Timer() { return *Button.findChild<QTimer*>(QStringLiteral("tmrMain")); }

  MemoryFileSystem Disk;
  RecordingPrompter Prompts;
  RecordingSounds Sounds;
  QWidget Form;
  EasyButton Button;
  int Clicks = 0;
};

// The ground and the middle of the tests' button without a picture, which is 60 by 30.
inline const QColor GroundColour(0xC0, 0xC0, 0xC0);
inline constexpr QPoint Middle(30, 15);

// The rectangle around everything in an image that isn't its ground, without the frame.
QRect InkOf(const QImage& image, const QColor& ground);

bool IsAllOf(const QImage& image, const QColor& colour);

// The colours of a frame in its raised and its sunken state.
QColor Light();
QColor DarkShadow();

}  // namespace vorlane
