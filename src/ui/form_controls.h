// Every control of the main window, made under its own name. Where they stand is the layout's
// business, what they show the presenter's, what they set off the program's.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <array>

#include "form/option_box.h"
#include "ui/easy_button.h"
#include "ui/file_list_view.h"
#include "ui/folder_tree_view.h"
#include "ui/image_bar.h"
#include "ui/operations_view.h"

namespace vorlane {

struct BoxControls {
  QLabel* Caption = nullptr;
  QLineEdit* Content = nullptr;
  QCheckBox* Check = nullptr;
};

inline constexpr int HelpLabelCount = 16;

// The controls belong to the form.
struct FormControls {
  // The folder tree reads the same disk as the buttons.
  FormControls(QWidget& form, const EasyButtonServices& services);

  ImageBar* TopBar;
  ImageBar* BottomBar;
  QLabel* Title;
  QFrame* Browse;
  FolderTreeView* Folders;  // inside Browse
  OperationsView* Operations;
  FileListView* FileList;
  QComboBox* Keywords;
  QLabel* FileStatus;
  QLabel* Status;
  EasyButton* ListFiles;
  EasyButton* ListFolders;
  EasyButton* ThisFolderOnly;
  EasyButton* IncludeSubFolders;
  EasyButton* DoOne;
  EasyButton* DoAll;
  QComboBox* WildCard;
  QProgressBar* Progress;
  EasyButton* Exit;
  EasyButton* Help;
  EasyButton* Undo;
  EasyButton* Go;
  EasyButton* Stop;
  std::array<BoxControls, OptionBoxCount> Boxes;
  std::array<QLabel*, HelpLabelCount> HelpLabels;

  // The places where the focus goes by TAB, in order.
  std::vector<QWidget*> TabChain() const;

 private:
  void GiveNames();
  void DescribeForAccessibility();
};

// The name of a control that is one of a group: "txtRenameOption(0)".
QString NameInGroup(const char* group, int index);

}  // namespace vorlane
