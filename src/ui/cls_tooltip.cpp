#include "ui/cls_tooltip.h"

#include <QCursor>
#include <cmath>

#include "layout/twips.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr int BelowThePointer = 20;  // clear of the pointer's picture

TipIcon IconOf(std::int32_t icon) {
  const bool isKnown = icon >= 0 && icon <= static_cast<std::int32_t>(TipIcon::Error);
  return isKnown ? static_cast<TipIcon>(icon) : TipIcon::None;
}

// To the nearest whole number, ties to the even one.
double Rounded(double value) {
  return std::nearbyint(value);
}

bool IsPress(QEvent::Type event) {
  return event == QEvent::MouseButtonPress || event == QEvent::MouseButtonDblClick;
}

// What the control is made of, such as the line edit of a box; not the windows that belong to it.
QList<QWidget*> PartsOf(const QWidget& control) {
  QList<QWidget*> parts = control.findChildren<QWidget*>();
  parts.removeIf([&](const QWidget* part) { return part->window() != control.window(); });
  return parts;
}

// The share of a length at the beginning, the middle or the end of it.
Twips PartOf(Twips length, int third) {
  return third == 1 ? Rounded(length / 2) : length * third / 2;
}

}  // namespace

ClsTooltip::ClsTooltip() {
  delay_.setSingleShot(true);
  delay_.setTimerType(Qt::PreciseTimer);
  visible_.setSingleShot(true);
  connect(&delay_, &QTimer::timeout, this, [this] { PointerRested(); });
  connect(&visible_, &QTimer::timeout, this, [this] { EndHover(Hover::Over); });
}

ClsTooltip::~ClsTooltip() {
  Destroy();
}

void ClsTooltip::SetBackColor(FormColour colour) {
  backColor_ = colour;
  if (window_) {
    window_->SetBackColor(ToQColor(colour, window_->palette()));
  }
}

void ClsTooltip::SetForeColor(FormColour colour) {
  foreColor_ = colour;
  if (window_) {
    window_->SetForeColor(ToQColor(colour, window_->palette()));
  }
}

void ClsTooltip::SetTipFont(const std::optional<QFont>& font) {
  font_ = font;
  if (window_ && font_) {
    window_->SetTextFont(*font_);
    ShowAgain();
  }
}

void ClsTooltip::SetTipText(TextView text) {
  text_ = text;
  if (!window_) {
    return;
  }
  TipContent content = window_->Content();
  content.Text = ToQString(text);
  window_->SetContent(content);
  if (hover_ == Hover::Shown && text.empty()) {
    EndHover(Hover::Over);
  }
  ShowAgain();
}

void ClsTooltip::SetTitle(TextView title) {
  title_ = title;
  SendTitle();
}

void ClsTooltip::SetIcon(std::int32_t icon) {
  icon_ = icon;
  SendTitle();
}

void ClsTooltip::SendTitle() {
  if (!window_ || title_.empty() || icon_ == NoIcon) {
    return;
  }
  TipContent content = window_->Content();
  content.Title = ToQString(title_);
  content.Icon = IconOf(icon_);
  window_->SetContent(content);
  ShowAgain();
}

// A tip in sight has another size with another content.
void ClsTooltip::ShowAgain() {
  if (hover_ == Hover::Shown) {
    ShowHoverTip();
  }
  PlaceTracked();
}

void ClsTooltip::CreateToolTip(QWidget& parent) {
  Destroy();
  window_ = new TipWindow(parent, style_ == BalloonStyle);
  window_->setObjectName(objectName());
  window_->SetContent(
      {.Icon = IconOf(icon_), .Title = ToQString(title_), .Text = ToQString(text_)});
  if (foreColor_ != 0) {
    window_->SetForeColor(ToQColor(foreColor_, window_->palette()));
  }
  if (backColor_ != 0) {
    window_->SetBackColor(ToQColor(backColor_, window_->palette()));
  }
  if (font_) {
    window_->SetTextFont(*font_);
  }
  visible_.setInterval(visibleTime_);
  delay_.setInterval(delayTime_);
  isTracked_ = popupOnDemand_;
  isCentered_ = centered_;
  parent_ = &parent;
  topLevel_ = parent.window();
  parent.setAttribute(Qt::WA_Hover);  // it is told where the pointer is, without taking its moves
  parent.installEventFilter(this);
  for (QWidget* part : PartsOf(parent)) {
    part->installEventFilter(this);
  }
  topLevel_->installEventFilter(this);
}

// Directly, not by the message loop: a loop that is run inside a long job clears nothing away.
void ClsTooltip::Destroy() {
  QList<QWidget*> watched = parent_ ? PartsOf(*parent_) : QList<QWidget*>();
  watched << parent_ << topLevel_ << client_;
  for (QWidget* widget : watched) {
    if (widget != nullptr) {
      widget->removeEventFilter(this);
    }
  }
  parent_ = nullptr;
  topLevel_ = nullptr;
  client_ = nullptr;
  delay_.stop();
  visible_.stop();
  hover_ = Hover::Outside;
  delete window_.data();
}

void ClsTooltip::Show(int x, int y, QWidget& client) {
  ShowAt({x, y}, client, {});
}

// Both lengths are taken by the horizontal number of twips to a pixel. The balloon lies on the side
// of the control at which its stem points to it, so that it covers as little as may be.
void ClsTooltip::ShowBalloonToolTip(QWidget& control, std::int32_t balloonPosition) {
  const int position = balloonPosition >= 0 && balloonPosition <= 8 ? balloonPosition : 0;
  const int column = position % 3;
  const int row = position / 3;
  const Twips x = PartOf(TwipsOf(control.width()), column);
  const Twips y = PartOf(TwipsOf(control.height()), row);
  ShowAt(
      {static_cast<int>(Rounded(x / TwipsPerPixel)), static_cast<int>(Rounded(y / TwipsPerPixel))},
      control, {.Above = row < 2, .To = static_cast<Lean>(column)});
}

void ClsTooltip::ShowAt(QPoint point, QWidget& client, TipSide side) {
  if (!window_ || !isTracked_) {
    return;
  }
  client_ = &client;
  client.installEventFilter(this);
  point_ = point;
  side_ = side;
  PlaceTracked();
}

void ClsTooltip::Raise() {
  if (window_ && window_->isVisible()) {
    window_->raise();
  }
}

bool ClsTooltip::IsWindowInFront() const {
  return topLevel_ && topLevel_->isVisible() && !topLevel_->isMinimized() &&
         topLevel_->isActiveWindow();
}

void ClsTooltip::PlaceTracked() {
  if (!window_ || !client_) {
    return;
  }
  if (!IsWindowInFront() || text_.empty()) {
    window_->hide();
    return;
  }
  window_->PlaceAt(client_->mapToGlobal(point_), side_, isCentered_);
  window_->show();
}

// The tip moves with its window. It comes back with it too, and then lies above those of controls
// that another one hides.
void ClsTooltip::FollowWindow() {
  const bool wasVisible = window_ && window_->isVisible();
  PlaceTracked();
  if (!wasVisible && client_ && client_->isVisible()) {
    QTimer::singleShot(0, this, [this] { Raise(); });
  }
}

bool ClsTooltip::eventFilter(QObject* watched, QEvent* event) {
  if (watched == client_ && event->type() == QEvent::Show) {
    Raise();  // its control has taken the place of another one
  }
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
    case QEvent::ActivationChange:
      if (watched == topLevel_ || watched == client_) {
        FollowWindow();
      }
      break;
    default:
      break;
  }
  if (!isTracked_ && window_) {
    if (watched == parent_) {
      WatchPointer(event->type());
    } else if (watched != topLevel_) {
      WatchPart(event->type());
    } else if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Move) {
      EndHover(Hover::Outside);
    }
  }
  return false;
}

void ClsTooltip::WatchPointer(QEvent::Type event) {
  switch (event) {
    case QEvent::Enter:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
      if (hover_ == Hover::Outside || hover_ == Hover::Waiting) {
        hover_ = Hover::Waiting;
        restingAt_ = QCursor::pos();
        delay_.start();
      }
      break;
    case QEvent::Leave:
    case QEvent::Hide:
      EndHover(Hover::Outside);
      break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      EndHover(Hover::Over);
      break;
    default:
      break;
  }
}

// A press in a part of the control is one in the control, which itself isn't told of it.
void ClsTooltip::WatchPart(QEvent::Type event) {
  if (IsPress(event)) {
    EndHover(Hover::Over);
  }
}

void ClsTooltip::AwaitNextRest() {
  if (hover_ == Hover::Over) {
    hover_ = Hover::Outside;
  }
}

void ClsTooltip::EndHover(Hover state) {
  delay_.stop();
  visible_.stop();
  hover_ = state;
  if (window_ && !isTracked_) {
    window_->hide();
  }
}

// Over a part of the control that has a window of its own the pointer moves without a word.
void ClsTooltip::PointerRested() {
  if (QCursor::pos() != restingAt_) {
    restingAt_ = QCursor::pos();
    delay_.start();
    return;
  }
  if (!IsWindowInFront() || text_.empty()) {
    EndHover(Hover::Outside);
    return;
  }
  hover_ = Hover::Shown;
  visible_.start();
  ShowHoverTip();
}

void ClsTooltip::ShowHoverTip() {
  if (!window_ || !parent_ || text_.empty()) {
    return;
  }
  QPoint anchor = restingAt_;
  if (isCentered_) {
    anchor = parent_->mapToGlobal(QPoint(parent_->width() / 2, parent_->height()));
  } else if (!window_->IsBalloon()) {
    anchor.ry() += BelowThePointer;
  }
  window_->PlaceAt(anchor, {}, isCentered_);
  window_->show();
}

}  // namespace vorlane
