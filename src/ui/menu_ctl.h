// MenuCtl: the program's own pop-up menu. It is filled item by item, shown once, and empty again.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/prompter.h"
#include "ui/menu_state.h"

namespace vorlane {

class MenuCtl {
 public:
  static constexpr FormColour OwnColor = 0xFFFFFFFF;

  // The menu belongs to the owner's window and has its font. The owner outlives each ShowMenu.
  MenuCtl(QWidget& owner, Prompter& boxes);

  MenuProperties& Properties() { return state_.Properties; }
  void ReadProperties(const QVariantMap& stored);
  QVariantMap WriteProperties() const;

  // An item of the name "seperator", in any case, is a line and can't be chosen. The control's own
  // colours are those of this moment.
  void AddItem(const QString& caption, const QString& name, bool enabled,
               const QImage& itemIcon = {}, FormColour itemForeColor = OwnColor,
               FormColour itemHotForeColor = OwnColor, FormColour itemHotBackColor = OwnColor);

  // Opens the menu at that place in pixels, both -1 for the pointer's, and returns when it has
  // closed; everything else of the program goes on meanwhile. The menu closes when a mouse button
  // is released, wherever that is: whoever opens one while a button is held down first shows it
  // empty, which takes that release.
  //
  // True if the user closed it by mouse or by choosing; false if by Escape, or if it ended because
  // of something else: another window came to the front, the program ends. A chosen item is told
  // from in here, when the list is empty again. While the menu is open no second one opens.
  bool ShowMenu(int x = -1, int y = -1, const QImage& leftImage = {});

  bool IsOpen() const { return isOpen_; }

  // The row from 1, and the item's caption and name.
  std::function<void(int index, const QString& caption, const QString& name)> ItemClicked;

 private:
  QWidget& owner_;
  Prompter& boxes_;
  MenuState state_;
  bool isOpen_ = false;
};

}  // namespace vorlane
