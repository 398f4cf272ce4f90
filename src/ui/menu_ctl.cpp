#include "ui/menu_ctl.h"

#include <QCursor>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <utility>

#include "ui/frm_menu_ctl.h"

namespace vorlane {

MenuCtl::MenuCtl(QWidget& owner, Prompter& boxes) : owner_(owner), boxes_(boxes) {
  ReadProperties({});
}

void MenuCtl::ReadProperties(const QVariantMap& stored) {
  state_.Properties = ReadMenuProperties(stored, owner_.font());
}

QVariantMap MenuCtl::WriteProperties() const {
  return WriteMenuProperties(state_.Properties, owner_.font());
}

void MenuCtl::AddItem(const QString& caption, const QString& name, bool enabled,
                      const QImage& itemIcon, FormColour itemForeColor, FormColour itemHotForeColor,
                      FormColour itemHotBackColor) {
  const auto colorOf = [](FormColour given, FormColour own) {
    return given == OwnColor ? own : given;
  };
  MenuItem item{name,
                caption,
                enabled,
                itemIcon,
                colorOf(itemForeColor, state_.Properties.ItemForeColor),
                colorOf(itemHotForeColor, state_.Properties.ItemHotForeColor),
                colorOf(itemHotBackColor, state_.Properties.ItemHotBackColor)};
  item.Enabled = enabled && !item.IsSeparator();
  state_.Items.push_back(std::move(item));
}

bool MenuCtl::ShowMenu(int x, int y, const QImage& leftImage) {
  if (isOpen_) {
    return false;
  }
  bool wasAnswered = false;
  {
    const QScopedValueRollback open(isOpen_, true);
    state_.LeftImage = leftImage;
    state_.MenuClosed = false;
    FrmMenuCtl form(state_, owner_, boxes_);
    QEventLoop loop;
    form.OnClosed = [&loop] { loop.quit(); };
    const QPoint place = x == -1 && y == -1 ? QCursor::pos() : QPoint(x, y);
    form.Open(TwipsOf(place.x()), TwipsOf(place.y()));
    if (!state_.MenuClosed) {
      loop.exec();
    }
    form.Dismiss();  // the program may have ended the loop, with the menu still there
    wasAnswered = form.WasAnswered();
  }
  const MenuItem* chosen = wasAnswered ? state_.Chosen() : nullptr;
  const MenuItem clicked = chosen != nullptr ? *chosen : MenuItem();
  const bool isClick = chosen != nullptr;
  state_.Items.clear();
  if (isClick && ItemClicked) {
    ItemClicked(state_.SelectedIndex, clicked.Caption, clicked.Name);
  }
  return wasAnswered;
}

}  // namespace vorlane
