// What a pop-up menu holds: its properties, which stay, and its items, which each showing uses up.
#pragma once

#include <QFont>
#include <QImage>
#include <QString>
#include <QVariantMap>
#include <vector>

#include "layout/menu_sums.h"
#include "ui/form_colours.h"

namespace vorlane {

// How the hot row shows.
enum MenuSelection : int { FilledBar = 0, DottedBox = 2 };  // any other number: a solid box

// The frame.
enum MenuStyle : int { EtchedFrame = 0, LayeredFrame = 1 };  // any other number: a flat line

struct MenuProperties {
  FormColour BackColor = DesktopColour::ButtonFace;
  bool Enabled = true;
  QFont Font;
  // Of a new item that is given none.
  FormColour ItemForeColor = DesktopColour::MenuText;
  FormColour ItemHotBackColor = DesktopColour::Highlight;
  FormColour ItemHotForeColor = DesktopColour::HighlightText;
  FormColour LeftPicBackColor = DesktopColour::ButtonFace;
  float MenuAnimSpeed = 500;  // twips added by each step of the opening
  int MouseOverSelectionType = FilledBar;
  bool OpenAnimated = false;
  int Style = EtchedFrame;
  bool UseIcons = false;
  bool UseLeftImage = false;

  MenuColumns Columns() const { return {UseIcons, UseLeftImage}; }
};

// Properties by their names. What isn't stored has its default, and what has its default isn't
// stored; the default font is the one of the window around.
MenuProperties ReadMenuProperties(const QVariantMap& stored, const QFont& ambientFont);
QVariantMap WriteMenuProperties(const MenuProperties& properties, const QFont& ambientFont);

struct MenuItem {
  QString Name;  // the caller's key
  QString Caption;
  bool Enabled = true;
  QImage ItemIcon;
  FormColour ItemForeColor = 0;
  FormColour ItemHotForeColor = 0;
  FormColour ItemHotBackColor = 0;

  // Draws as a line.
  bool IsSeparator() const;
};

struct MenuState {
  MenuProperties Properties;
  std::vector<MenuItem> Items;
  QImage LeftImage;
  int SelectedIndex = 0;  // the hot row, from 1; 0 none yet, -1 pointer outside
  int PreviousIndex = 0;  // the hot row before
  bool MenuClosed = false;

  // Null if the hot row isn't one that can be chosen.
  const MenuItem* Chosen() const;
};

}  // namespace vorlane
