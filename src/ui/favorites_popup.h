// The menu of favorite folders on the main window: by a click of the right mouse button on the form
// or one of its bars, or by the keyboard.
#pragma once

#include "catalogue/favorites.h"
#include "ui/menu_ctl.h"
#include "ui/program.h"

namespace vorlane {

class FavoritesPopup final : private FavoritesMenu {
 public:
  // From now on the program's window has the menu. Favorites are kept in those slots.
  FavoritesPopup(Program& program, FileSystem& files, FavoriteSlots& store, Prompter& boxes);

 private:
  bool AwaitRelease() override;
  void AddItem(const FavoriteLine& line) override;
  void Show() override;
  void Open(FavoritesAskedBy asked);

  Program& program_;
  MenuCtl mnuFavorites_;
  Favorites rules_;
  QPoint place_;  // of the menu; (-1, -1) is the pointer's
};

}  // namespace vorlane
