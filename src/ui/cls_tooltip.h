// clsTooltip: the tool tip of one control. Either it watches the mouse and appears by itself, or,
// on demand, it is shown at a place and stays until it is destroyed.
#pragma once

#include <QEvent>
#include <QFont>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <cstdint>
#include <optional>

#include "platform/text.h"
#include "ui/form_colours.h"
#include "ui/tip_window.h"

namespace vorlane {

class ClsTooltip final : public QObject {
 public:
  enum : std::int32_t { RectangleStyle = 0, BalloonStyle = 1 };
  enum : std::int32_t { NoIcon = 0, InformationIcon = 1 };

  ClsTooltip();
  ~ClsTooltip() override;

  // These act on a tip that exists at once; one that has just been made takes them over. A colour
  // of 0 at the making leaves the desktop's; set later, it is black.
  FormColour BackColor() const { return backColor_; }
  void SetBackColor(FormColour colour);
  FormColour ForeColor() const { return foreColor_; }
  void SetForeColor(FormColour colour);
  const std::optional<QFont>& TipFont() const { return font_; }
  void SetTipFont(const std::optional<QFont>& font);

  // An empty text shows no tip at all, a blank one shows the title.
  const Text& TipText() const { return text_; }
  void SetTipText(TextView text);

  // A tip that exists takes a new title or icon only while there is both a title and an icon.
  const Text& Title() const { return title_; }
  void SetTitle(TextView title);
  std::int32_t Icon() const { return icon_; }
  void SetIcon(std::int32_t icon);

  // These count from the next CreateToolTip on. Times are in milliseconds.
  bool Centered() const { return centered_; }  // below the middle of its anchor
  void SetCentered(bool centered) { centered_ = centered; }
  std::int32_t DelayTime() const { return delayTime_; }
  void SetDelayTime(std::int32_t milliseconds) { delayTime_ = milliseconds; }
  std::int32_t VisibleTime() const { return visibleTime_; }
  void SetVisibleTime(std::int32_t milliseconds) { visibleTime_ = milliseconds; }
  bool PopupOnDemand() const { return popupOnDemand_; }
  void SetPopupOnDemand(bool onDemand) { popupOnDemand_ = onDemand; }
  std::int32_t Style() const { return style_; }
  void SetStyle(std::int32_t style) { style_ = style; }

  // Makes the tip for that control, in place of an earlier one. The tip doesn't outlive the
  // control.
  void CreateToolTip(QWidget& parent);
  void Destroy();

  // A tip on demand appears at that point of a control and stays: no time ends it, but it is out of
  // sight while its window is. Does nothing for other tips.
  void Show(int x, int y, QWidget& client);

  // The same at a named place of the control: 0 to 8, row by row, from its upper left to its lower
  // right corner; any other number is 0.
  void ShowBalloonToolTip(QWidget& control, std::int32_t balloonPosition);

  // Above all other tips.
  void Raise();

  // The pointer's next rest in the control counts, although a press or the time has ended the last
  // one: the tip has something new to tell.
  void AwaitNextRest();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // How far a tip that watches the mouse has come.
  enum class Hover : unsigned char { Outside, Waiting, Shown, Over };

  void SendTitle();
  void ShowAgain();
  void ShowAt(QPoint point, QWidget& client, TipSide side);
  bool IsWindowInFront() const;
  void FollowWindow();
  void PlaceTracked();
  void WatchPointer(QEvent::Type event);
  void WatchPart(QEvent::Type event);
  void EndHover(Hover state);
  void PointerRested();
  void ShowHoverTip();

  FormColour backColor_ = 0;
  FormColour foreColor_ = 0;
  std::optional<QFont> font_;
  Text text_;
  Text title_;
  std::int32_t icon_ = NoIcon;
  bool centered_ = false;
  std::int32_t delayTime_ = 500;
  std::int32_t visibleTime_ = 5000;
  bool popupOnDemand_ = false;
  std::int32_t style_ = RectangleStyle;

  // The tip as it was made.
  QPointer<TipWindow> window_;
  QPointer<QWidget> parent_;
  QPointer<QWidget> topLevel_;  // of the parent
  bool isTracked_ = false;
  bool isCentered_ = false;

  // A tracked tip that is shown, and where in its client.
  QPointer<QWidget> client_;
  QPoint point_;
  TipSide side_;

  Hover hover_ = Hover::Outside;
  QPoint restingAt_;
  QTimer delay_;
  QTimer visible_;
};

}  // namespace vorlane
