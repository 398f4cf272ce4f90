// The favorite folders in the user's settings, by the names "Favorite_00" to "Favorite_20".
#pragma once

#include "catalogue/favorites.h"
#include "shell/settings.h"

namespace vorlane {

class StoredFavorites final : public FavoriteSlots {
 public:
  explicit StoredFavorites(Settings& settings) : settings_(settings) {}

  Text Read(int slot) override;
  void Save(int slot, TextView folder) override;
  void Delete(int slot) override;

 private:
  Settings& settings_;
};

}  // namespace vorlane
