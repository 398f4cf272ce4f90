#include "catalogue/favorites.h"

#include "platform/interface_texts.h"

namespace vorlane {

namespace {

constexpr std::uint32_t FavoriteColor = 0x646400;  // red 0, green 100, blue 100

}  // namespace

// An empty slot has no folder that could have gone.
bool Favorites::IsGone(TextView folder) const {
  return !folder.empty() && !FolderExists(files_, folder);
}

void Favorites::AddHeading(int textNumber) {
  menu_.AddItem({FavoriteKey::Heading, Text(InterfaceText(textNumber)), false});
  menu_.AddItem({FavoriteKey::Separator, {}, false});
}

void Favorites::ShowMenu(FavoritesAskedBy asked) {
  // The click's end would close the menu. By the keyboard there is none to wait for.
  if (form_.RunIsAtWork() || (asked == FavoritesAskedBy::Mouse && !menu_.AwaitRelease())) {
    return;
  }
  AddHeading(TextNumber::Favorites);
  menu_.AddItem({.Key = FavoriteKey::Add,
                 .Caption = Text(InterfaceText(TextNumber::AddFavorite)),
                 .Icon = FavoriteIcon::Save});
  menu_.AddItem({.Key = FavoriteKey::Delete,
                 .Caption = Text(InterfaceText(TextNumber::DeleteAFavorite)),
                 .Icon = FavoriteIcon::Delete});
  menu_.AddItem({FavoriteKey::Separator, {}, false});
  for (int slot = 0; slot < FavoriteSlotCount; ++slot) {
    if (Text folder = store_.Read(slot); !folder.empty()) {
      menu_.AddItem({.Key = FavoriteKey::Favorite,
                     .Caption = std::move(folder),
                     .Icon = FavoriteIcon::Folder,
                     .ForeColor = FavoriteColor});
    }
  }
  menu_.Show();
}

void Favorites::ItemClicked(TextView caption, TextView key) {
  if (form_.RunIsAtWork()) {
    return;
  }
  if (key == FavoriteKey::Add) {
    Add();
  } else if (key == FavoriteKey::Delete) {
    ShowDeletable();
  } else if (key == FavoriteKey::FavoriteDelete) {
    Delete(caption);
  } else if (key == FavoriteKey::Favorite) {
    GoTo(caption);
  }
}

// With all slots taken the folder goes behind them, where nobody looks.
void Favorites::Add() {
  int slot = 0;
  while (slot < FavoriteSlotCount) {
    const Text folder = store_.Read(slot);
    if (folder.empty() || IsGone(folder)) {
      break;
    }
    ++slot;
  }
  store_.Save(slot, form_.CurrentPath);
}

// Drops the favorites whose folders have gone on its way.
void Favorites::ShowDeletable() {
  bool isEmpty = true;
  for (int slot = 0; slot < FavoriteSlotCount; ++slot) {
    Text folder = store_.Read(slot);
    if (IsGone(folder)) {
      store_.Delete(slot);
    } else if (!folder.empty()) {
      if (isEmpty) {
        AddHeading(TextNumber::DeleteFavorite);
        isEmpty = false;
      }
      menu_.AddItem({.Key = FavoriteKey::FavoriteDelete, .Caption = std::move(folder)});
    }
  }
  if (!isEmpty) {
    menu_.Show();
  }
}

// A folder that has gone since the menu was made goes in place of the chosen one.
void Favorites::Delete(TextView folder) {
  for (int slot = 0; slot < FavoriteSlotCount; ++slot) {
    const Text kept = store_.Read(slot);
    if (kept == folder || IsGone(kept)) {
      store_.Delete(slot);
      return;
    }
  }
}

void Favorites::GoTo(TextView folder) {
  if (!folder.empty() && FolderExists(files_, folder)) {
    goTo_(Text(folder));
  }
}

}  // namespace vorlane
