#include "ui/favorites_popup.h"

#include <QApplication>

#include "ui/program_icons.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr QPoint AtPointer(-1, -1);

QImage PictureOf(FavoriteIcon icon) {
  switch (icon) {
    case FavoriteIcon::Save:
      return MenuIconPicture(MenuIcon::Save).toImage();
    case FavoriteIcon::Delete:
      return MenuIconPicture(MenuIcon::Delete).toImage();
    case FavoriteIcon::Folder:
      return MenuIconPicture(MenuIcon::Folder).toImage();
    case FavoriteIcon::None:
      break;
  }
  return {};
}

// 8.25 points.
QFont MenuFont() {
  constexpr int Pixels = 11;
  QFont font(QStringLiteral("MS Sans Serif"));
  font.setPixelSize(Pixels);
  return font;
}

// Whoever asks by the keyboard looks at the control that has the focus.
QPoint PlaceForKeyboard(const QWidget& window) {
  const QWidget* focus = QApplication::focusWidget();
  const QWidget& near = focus != nullptr && window.isAncestorOf(focus) ? *focus : window;
  return near.mapToGlobal(near.rect().center());
}

}  // namespace

FavoritesPopup::FavoritesPopup(Program& program, FileSystem& files, FavoriteSlots& store,
                               Prompter& boxes)
    : program_(program),
      mnuFavorites_(program.Window(), boxes),
      rules_(program.State(), files, store, *this, [&program](const Text& folder) {
        program.Gate().Start([&program, folder] { program.Browser().SelectBrowserFolder(folder); });
      }) {
  mnuFavorites_.ReadProperties({{QStringLiteral("Font"), MenuFont()},
                                {QStringLiteral("Style"), static_cast<int>(LayeredFrame)}});
  mnuFavorites_.ItemClicked = [this](int, const QString& caption, const QString& name) {
    rules_.ItemClicked(ToText(caption), ToText(name));
  };
  program.Window().OnRightPress = [this] { Open(FavoritesAskedBy::Mouse); };
  program.OnMenuKey = [this] { Open(FavoritesAskedBy::Keyboard); };
}

// The gate knows of the menu as long as it is open, so that the window doesn't close under it.
void FavoritesPopup::Open(FavoritesAskedBy asked) {
  // The menu would take the release of a button that is held, which somebody waits for.
  const bool isHeld = QGuiApplication::mouseButtons() != Qt::NoButton;
  if (mnuFavorites_.IsOpen() || (asked == FavoritesAskedBy::Keyboard && isHeld)) {
    return;
  }
  place_ = asked == FavoritesAskedBy::Keyboard ? PlaceForKeyboard(program_.Window()) : AtPointer;
  program_.Gate().Run([this, asked] { rules_.ShowMenu(asked); });
}

bool FavoritesPopup::AwaitRelease() {
  return mnuFavorites_.ShowMenu();
}

void FavoritesPopup::AddItem(const FavoriteLine& line) {
  mnuFavorites_.Properties().UseIcons = true;
  mnuFavorites_.AddItem(ToQString(line.Caption), ToQString(line.Key), line.Enabled,
                        PictureOf(line.Icon), line.ForeColor);
}

void FavoritesPopup::Show() {
  if (!program_.IsClosing()) {
    mnuFavorites_.ShowMenu(place_.x(), place_.y());
  }
}

}  // namespace vorlane
