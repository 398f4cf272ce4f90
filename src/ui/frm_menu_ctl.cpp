#include "ui/frm_menu_ctl.h"

#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include "ui/menu_rows.h"
#include "ui/mod_menu_ctl.h"

namespace vorlane {

namespace {

constexpr Twips P = TwipsPerPixel;

struct ScreenEnds {
  Twips Width;
  Twips Height;
};

ScreenEnds EndsOfScreen() {
  const QRect screen = QGuiApplication::primaryScreen()->virtualGeometry();
  return {TwipsOf(screen.x() + screen.width()), TwipsOf(screen.y() + screen.height())};
}

// Assistive programs see the menu as the one item that is hot.
class HotItemAccessible final : public QAccessibleWidget {
 public:
  explicit HotItemAccessible(QWidget* menu) : QAccessibleWidget(menu, QAccessible::MenuItem) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    state.focused = true;
    return state;
  }
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
  auto* menu = dynamic_cast<FrmMenuCtl*>(object);
  return menu == nullptr ? nullptr : new HotItemAccessible(menu);
}

}  // namespace

FrmMenuCtl::FrmMenuCtl(MenuState& menu, QWidget& owner, Prompter& boxes)
    : QWidget(&owner, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
      menu_(menu),
      owner_(owner),
      boxes_(boxes),
      canvas_(owner.devicePixelRatioF()) {
  setObjectName(QStringLiteral("frmMenuCtl"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_X11NetWmWindowTypePopupMenu);
  setMouseTracking(true);
  menu_.SelectedIndex = 0;
  menu_.PreviousIndex = 0;
  canvas_.Font = menu_.Properties.Font;
  canvas_.BackColor = menu_.Properties.BackColor;
  QAccessible::installFactory(MakeAccessible);  // once, however often it is told
}

// A menu that doesn't grow in sight has its size before it shows.
void FrmMenuCtl::Open(Twips left, Twips top) {
  place_ = {left, top, 1, 1};
  TakeGeometry();
  WatchOwner();
  if (menu_.Properties.OpenAnimated) {
    show();
    DrawMenu(true, true, true, true);
  } else {
    DrawMenu(true, true, true, true);
    show();
  }
  if (!menu_.Items.empty()) {
    AnnounceHotRow();
  }
}

// Another window in front takes the keys away from a menu, which would then stand there for ever.
void FrmMenuCtl::WatchOwner() {
  owner_.window()->installEventFilter(this);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
    if (window != windowHandle() && window != owner_.window()->windowHandle()) {
      Dismiss();
    }
  });
}

bool FrmMenuCtl::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide || event->type() == QEvent::WindowBlocked) {
    Dismiss();
  }
  return QWidget::eventFilter(watched, event);
}

void FrmMenuCtl::TakeGeometry() {
  const QSize size(std::max(1, PixelsOf(place_.Width)), std::max(1, PixelsOf(place_.Height)));
  setGeometry({QPoint(PixelsOf(place_.Left), PixelsOf(place_.Top)), size});
  canvas_.Resize(size);
}

void FrmMenuCtl::DrawMenu(bool drawBorder, bool resizeMenu, bool drawIcons, bool openAnim) {
  if (drawBorder) {
    canvas_.Cls();
    DrawLeftStrip();
  }
  canvas_.Current.Y = MenuRowsTop;
  if (menu_.Items.empty()) {
    return;
  }
  if (resizeMenu) {
    const Twips widest = WidestCaption(canvas_, menu_);
    if (!menu_.Properties.OpenAnimated) {
      TakePlainSize(widest);
    } else if (openAnim) {
      GrowStepByStep(widest);  // which draws the menu whole at its end
      return;
    }
  }
  canvas_.Current.Y = MenuRowsTop;
  MenuRows(canvas_, menu_, place_.Width)
      .Draw(drawBorder ? MenuRows::Extent::Everything : MenuRows::Extent::Highlight, drawIcons);
  if (drawBorder) {
    DrawFrame();
  }
  update();
}

void FrmMenuCtl::DrawLeftStrip() {
  if (!menu_.Properties.UseLeftImage) {
    return;
  }
  canvas_.FilledBox({2 * P, 3 * P}, {17 * P, place_.Height - 4 * P},
                    menu_.Properties.LeftPicBackColor);
  const Twips height = TwipsOf(qRound(menu_.LeftImage.deviceIndependentSize().height()));
  canvas_.PaintPicture(menu_.LeftImage, {2 * P, place_.Height - 3 * P - height});
}

void FrmMenuCtl::TakePlainSize(Twips widest) {
  const ScreenEnds screen = EndsOfScreen();
  place_.Height = MenuHeight(static_cast<int>(menu_.Items.size()), MenuRowHeight(canvas_, menu_));
  place_.Top = KeptBeforeEnd(place_.Top, place_.Height, screen.Height);
  place_.Width = MenuWidth(widest, menu_.Properties.Columns(), MenuStart::AtOnce);
  place_.Left = KeptBeforeEnd(place_.Left, place_.Width, screen.Width);
  TakeGeometry();
  DrawLeftStrip();
}

// Everything else may happen between two steps, the menu's end too.
void FrmMenuCtl::GrowStepByStep(Twips widest) {
  const ScreenEnds screen = EndsOfScreen();
  const MenuGrowth growth{
      .Height = MenuHeight(static_cast<int>(menu_.Items.size()), MenuRowHeight(canvas_, menu_)),
      .Width = MenuWidth(widest, menu_.Properties.Columns(), MenuStart::StepByStep),
      .Step = menu_.Properties.MenuAnimSpeed,
      .ScreenWidth = screen.Width,
      .ScreenHeight = screen.Height};
  place_.Height = MenuGrowsFrom;
  place_.Width = MenuGrowsFrom;
  for (int i = 0; i <= growth.Height && !menu_.MenuClosed; ++i) {
    const bool goesOn = GrowMenu(place_, growth);
    TakeGeometry();
    DrawMenu(true, !goesOn, true, false);
    if (!goesOn) {
      return;
    }
    repaint();
    QCoreApplication::processEvents();
  }
}

void FrmMenuCtl::DrawFrame() {
  switch (menu_.Properties.Style) {
    case EtchedFrame:
      DrawFrameEtched(canvas_, {}, {}, false);
      break;
    case LayeredFrame:
      DrawFrameLayered(canvas_, 3, {}, {}, false, boxes_);
      break;
    default:
      DrawFrameFlat(canvas_, ColorToWorkOut, 1, {});
  }
}

void FrmMenuCtl::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).drawImage(0, 0, canvas_.Picture());
}

void FrmMenuCtl::mouseMoveEvent(QMouseEvent* event) {
  const Twips x = TwipsOf(qFloor(event->position().x()));
  const Twips y = TwipsOf(qFloor(event->position().y()));
  if (x < 0 || x > place_.Width || y < 0 || y > place_.Height) {
    if (menu_.SelectedIndex != -1) {
      SetHotRow(-1);
    }
    return;
  }
  if (menu_.Items.empty()) {
    return;
  }
  const int row = MenuRowAt(y, MenuRowHeight(canvas_, menu_));
  if (row != menu_.SelectedIndex && x > 0 && x < place_.Width) {
    SetHotRow(row);
  }
}

void FrmMenuCtl::SetHotRow(int row) {
  menu_.PreviousIndex = menu_.SelectedIndex;
  menu_.SelectedIndex = row;
  DrawMenu(false, false, false, false);
  AnnounceHotRow();
}

// Without a row that could be chosen it is the heading, if there is one.
void FrmMenuCtl::AnnounceHotRow() {
  const MenuItem* row = menu_.Chosen();
  if (row == nullptr && !menu_.Items.empty() && !menu_.Items.front().Enabled) {
    row = &menu_.Items.front();
  }
  setAccessibleName(row == nullptr ? QString() : ShownCaption(*row));
  QAccessibleEvent focus(this, QAccessible::Focus);
  QAccessible::updateAccessibility(&focus);
}

void FrmMenuCtl::mousePressEvent(QMouseEvent* /*event*/) {}
void FrmMenuCtl::mouseDoubleClickEvent(QMouseEvent* /*event*/) {}

void FrmMenuCtl::mouseReleaseEvent(QMouseEvent* /*event*/) {
  Answer();
}

void FrmMenuCtl::Answer() {
  answered_ = true;
  menu_.MenuClosed = true;
  hide();
}

void FrmMenuCtl::Dismiss() {
  hide();
}

// Whatever hides the menu ends it.
void FrmMenuCtl::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!answered_) {
    menu_.SelectedIndex = -1;
    menu_.MenuClosed = true;
  }
  if (OnClosed) {
    OnClosed();
  }
}

// From row to row that can be chosen, and round the ends.
void FrmMenuCtl::StepHotRow(int from, int direction) {
  const int count = static_cast<int>(menu_.Items.size());
  int row = from;
  for (int i = 0; i < count; ++i) {
    row = (row - 1 + direction + count) % count + 1;
    if (menu_.Items[static_cast<std::size_t>(row - 1)].Enabled) {
      SetHotRow(row);
      return;
    }
  }
}

void FrmMenuCtl::keyPressEvent(QKeyEvent* event) {
  const int count = static_cast<int>(menu_.Items.size());
  const bool isOnRow = menu_.SelectedIndex >= 1 && menu_.SelectedIndex <= count;
  switch (event->key()) {
    case Qt::Key_Escape:
      Dismiss();
      break;
    case Qt::Key_Down:
      StepHotRow(isOnRow ? menu_.SelectedIndex : 0, 1);
      break;
    case Qt::Key_Up:
      StepHotRow(isOnRow ? menu_.SelectedIndex : count + 1, -1);
      break;
    case Qt::Key_Home:
      StepHotRow(0, 1);
      break;
    case Qt::Key_End:
      StepHotRow(count + 1, -1);
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (menu_.Chosen() != nullptr) {
        Answer();
      }
      break;
    default:
      break;
  }
}

}  // namespace vorlane
