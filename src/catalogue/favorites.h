// The user's favorite folders: a short list, kept in numbered slots and shown as a menu that adds
// the current folder, deletes a favorite and goes to one.
#pragma once

#include <cstdint>
#include <functional>

#include "form/form.h"

namespace vorlane {

inline constexpr int FavoriteSlotCount = 21;

// Where favorites are kept, by slot. A slot behind the last one takes a folder that nobody reads.
class FavoriteSlots {
 public:
  virtual ~FavoriteSlots() = default;

  // Empty if the slot is, or can't be read.
  virtual Text Read(int slot) = 0;
  virtual void Save(int slot, TextView folder) = 0;
  virtual void Delete(int slot) = 0;
};

enum class FavoriteIcon : std::uint8_t { None, Save, Delete, Folder };

// By which a line tells what it does when it is chosen.
namespace FavoriteKey {

inline constexpr TextView Heading;
inline constexpr TextView Separator = u"Separator";  // shows as a blank line
inline constexpr TextView Add = u"Add";
inline constexpr TextView Delete = u"Delete";
inline constexpr TextView Favorite = u"Favorite";
inline constexpr TextView FavoriteDelete = u"FavoriteDelete";

}  // namespace FavoriteKey

struct FavoriteLine {
  TextView Key;
  Text Caption{};
  bool Enabled = true;
  FavoriteIcon Icon = FavoriteIcon::None;
  std::uint32_t ForeColor = 0xFFFFFFFF;  // blue, green, red; or this, the menu's own
};

// A menu that is filled line by line, shown once and empty again.
class FavoritesMenu {
 public:
  virtual ~FavoritesMenu() = default;

  // Waits for the end of the click that asks for the menu. False if the menu is no longer wanted.
  virtual bool AwaitRelease() = 0;
  virtual void AddItem(const FavoriteLine& line) = 0;

  // Returns when the menu has closed. A chosen line comes to Favorites::ItemClicked from in here.
  virtual void Show() = 0;
};

enum class FavoritesAskedBy : std::uint8_t { Mouse, Keyboard };

// Nothing here happens in the middle of a run or an undo.
class Favorites {
 public:
  // `goTo` takes the folder tree to a folder.
  Favorites(Form& form, FileSystem& files, FavoriteSlots& store, FavoritesMenu& menu,
            std::function<void(const Text&)> goTo)
      : form_(form), files_(files), store_(store), menu_(menu), goTo_(std::move(goTo)) {}

  // Every favorite is listed, also one whose folder has gone.
  void ShowMenu(FavoritesAskedBy asked);

  void ItemClicked(TextView caption, TextView key);

 private:
  bool IsGone(TextView folder) const;
  void AddHeading(int textNumber);
  void Add();
  void ShowDeletable();
  void Delete(TextView folder);
  void GoTo(TextView folder);

  Form& form_;
  FileSystem& files_;
  FavoriteSlots& store_;
  FavoritesMenu& menu_;
  std::function<void(const Text&)> goTo_;
};

}  // namespace vorlane
