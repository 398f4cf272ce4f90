// The program's own button. Its look is one bitmap of four strips (see strip_picture.h), whose mask
// gives it any outline; without a picture it draws a plain frame of one pixel. It clicks when it is
// pressed.
//
// The pointer is followed by a timer that looks where it is every 10 ms, and that runs only while
// the pointer is on the button or holds it. A button that nobody points at costs nothing.
//
// Fixed colours, whatever the desktop's: the frame in its normal state is &HCFCFCF. From the
// desktop's palette: its raised and sunken frame (3D highlight and 3D dark shadow) and the caption
// of a disabled button (disabled text). Ground and caption have BackColor and ForeColor. The font
// is Font, whose size is in pixels in this program.
//
// A set of Align, BackColor, Caption, Enabled, Font or ForeColor clears the button and paints its
// state anew; the painters of "hover" and "down" leave at once if that state is on already. So a
// button that changes under the pointer is blank until the pointer leaves it or presses it. That is
// meant to be so.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/prompter.h"
#include "platform/sound_player.h"
#include "ui/form_colours.h"
#include "ui/property_store.h"
#include "ui/strip_picture.h"

class QPainter;

namespace vorlane {

// What buttons stand on; outlives them.
struct EasyButtonServices {
  FileSystem& Files;  // where sounds are read from
  Prompter& Prompts;
  SoundPlayer& Sounds;
};

// Button: 1 left, 2 right, 4 middle. Shift: 1 Shift, 2 Ctrl, 4 Alt, added up. X and Y are pixels in
// the button.
struct MouseArguments {
  int Button = 0;
  int Shift = 0;
  int X = 0;
  int Y = 0;
};

// Any other stored number is kept too: one above 0 plays what bytes there are.
enum class UsedSound : int { None, BuiltInClick, File };

class EasyButton : public QWidget {
 public:
  // A button without caption, picture and sound.
  EasyButton(const EasyButtonServices& services, QWidget* parent);

  void AboutBox() {}  // there is none

  // The keys that fire the button together with Alt, each a character.
  const QString& AccessKey() const { return accessKey_; }
  void SetAccessKey(const QString& newKey);

  // See caption_alignment.h.
  int Align() const { return align_; }
  void SetAlign(int newAlign);

  FormColour BackColor() const { return backColor_; }
  void SetBackColor(FormColour newBackColor);

  // "&" underlines the character behind it. It becomes the access key only when properties are
  // read.
  const QString& Caption() const { return caption_; }
  void SetCaption(const QString& newCaption);

  // The same as QWidget's isEnabled and setEnabled. A disabled button keeps its strips; its caption
  // changes its colour. It swallows the mouse.
  bool Enabled() const { return isEnabled(); }
  void SetEnabled(bool newEnabled);

  // The same as QWidget's font and setFont.
  QFont Font() const { return font(); }
  void SetFont(const QFont& newFont);

  FormColour ForeColor() const { return foreColor_; }
  void SetForeColor(FormColour newForeColor);

  // Fills SoundBytes with the built-in click.
  void GetBytes();

  // The control's window. Asking for it gives the button a window of its own in the display's eyes.
  WId hwnd() const { return winId(); }

  // Shown while MousePointer is 99.
  const QImage& MouseIcon() const { return mouseIcon_; }
  void SetMouseIcon(const QImage& newMouseIcon);

  // 0 the parent's, 1 to 15 the well-known shapes, 99 MouseIcon. Any other shows the parent's.
  int MousePointer() const { return mousePointer_; }
  void SetMousePointer(int newMousePointer);

  // Four strips. The button takes the size of one and keeps it against whoever sets another, shows
  // itself in its normal look and has the mask's outline. A null image, or one too small for four
  // strips, is no picture: from the next change of state on the button shows its plain look, within
  // the outline that it had.
  const QImage& Picture() const { return picture_; }
  void SetPicture(const QImage& picture);

  // A file that isn't there is told in a message box, and the button falls silent, as it does
  // without a word for an empty name. A file that can't be read, or of more than 16 MB, leaves the
  // sound as it was. UseSound isn't changed otherwise.
  const Text& SoundFileName() const { return soundFileName_; }
  void SetSoundFileName(const Text& name);

  // Stores the value; loads nothing.
  UsedSound UseSound() const { return useSound_; }
  void SetUseSound(UsedSound newData);

  // The sound, a complete WAV image.
  const std::string& SoundBytes() const { return soundBytes_; }

  // What a button shows that has neither a picture nor a caption, so that the program can be used
  // without pictures: this text in two lines if need be, on the desktop's ground for buttons.
  void SetStandInCaption(const QString& caption);

  // True while the focus has come by the keyboard: only then it shows.
  bool ShowsFocus() const { return showsFocus_ && hasFocus(); }

  // In their own orders, with the defaults of a button that was never changed. A stored caption
  // gives the access key.
  void ReadProperties(PropertyStore& store);
  void WriteProperties(PropertyStore& store) const;

  // As a press of the access key does: sound and click, wherever the pointer is. Not while the
  // button is disabled.
  void Fire();

  std::function<void()> OnClick;
  std::function<void()> OnDblClick;
  // The key's number in the toolkit, and Shift as above.
  std::function<void(int keyCode, int shift)> OnKeyDown;
  std::function<void(int keyAscii)> OnKeyPress;
  std::function<void(int keyCode, int shift)> OnKeyUp;
  std::function<void(const MouseArguments&)> OnMouseDown;
  std::function<void()> OnMouseMove;  // for whoever needs to know no more
  std::function<void(const MouseArguments&)> OnMouseMoveAt;
  std::function<void(const MouseArguments&)> OnMouseUp;

  // A property has got a value, new or not; by its name in the store.
  std::function<void(const QString& name)> OnPropertyChanged;

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  enum class State { Normal, Hover, Down };

  // Properties.
  void PropertyChanged(const char* name);
  void LookChanged(const char* name);
  void ShowPointer();
  void GrabAccessKeys();
  void LoadSound();
  void TakeStoredSound();
  QFont AmbientFont() const;
  void PlayButtonSound();

  // Painting.
  void DrawStateNormal();
  void DrawStateHover();
  void DrawStateDown();
  void DrawCurrentState();
  void DrawState(State state);
  void Draw(Strip strip);
  void DrawPlainFrame(QPainter& painter, Strip strip) const;
  void DrawCaption(QPainter& painter) const;
  void DrawFocus(QPainter& painter) const;
  bool ShowsStandIn() const;
  void Clear();
  void FitCanvas();
  void SizeChanged();

  // Pointer and clicks.
  bool TakeWhileDisabled(QEvent& event);
  void PointerMoved(const MouseArguments& arguments);
  void ButtonPressed(const QMouseEvent& event);
  bool IsPointerOver() const;
  void tmrMain_Timer();
  void Click();

  EasyButtonServices services_;
  QTimer* tmrMain_;

  QRect textRectangle_;
  int pressedButton_ = 0;  // 1 is the left one
  State drawState_ = State::Normal;
  bool overOpaque_ = false;  // the pointer was on a solid place when it last moved
  QString caption_;
  int align_ = 0;
  bool hasPicture_ = false;
  std::string soundBytes_;
  UsedSound useSound_ = UsedSound::None;
  Text soundFileName_;
  bool leftReleased_ = false;

  FormColour backColor_ = 0xC0C0C0;
  FormColour foreColor_ = DesktopColour::ButtonText;
  QImage picture_;
  StripPicture strips_;
  QPixmap canvas_;  // what is on the screen but for the focus
  QString standIn_;
  QString accessKey_;
  std::vector<int> shortcuts_;
  QImage mouseIcon_;
  int mousePointer_ = 0;
  bool showsFocus_ = false;

  QPoint lastMove_;              // where the pointer last moved in the button
  bool pointerIsIn_ = false;     // by what the toolkit says
  bool wasPressedHere_ = false;  // the pointer hasn't left since
  bool clickBegun_ = false;
};

}  // namespace vorlane
