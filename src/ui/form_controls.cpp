#include "ui/form_controls.h"

#include <QVBoxLayout>

#include "platform/interface_texts.h"
#include "platform/vendor.h"
#include "ui/application_look.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

QString TextOf(int number) {
  return ToQString(InterfaceText(number));
}

// Nothing but its picture is to be seen of a button. While it has none it shows its caption.
EasyButton* MakeButton(QWidget& form, const EasyButtonServices& services, int caption) {
  auto* button = new EasyButton(services, &form);
  PropertyBag designed({{QStringLiteral("Caption"), QString()},
                        {QStringLiteral("Align"), 0},
                        {QStringLiteral("BackColor"), 0xC0C0C0U},
                        {QStringLiteral("Font"), QVariant::fromValue(StandardFont())},
                        {QStringLiteral("ForeColor"), DesktopColour::ButtonText}});
  button->ReadProperties(designed);
  button->SetStandInCaption(TextOf(caption));
  return button;
}

// A label keeps the mouse to itself: a right click on it isn't one on the form.
QLabel* MakeLabel(QWidget& form) {
  auto* label = new QLabel(&form);
  label->setAttribute(Qt::WA_NoMousePropagation);
  label->setTextFormat(Qt::PlainText);
  return label;
}

// The pairs of title and text among the tool-tip texts.
struct Description {
  QWidget* Control;
  int Title;
  int Text;
};

void Describe(const Description& description) {
  const QString title = TextOf(TextNumber::FirstToolTip + description.Title);
  const QString text = TextOf(TextNumber::FirstToolTip + description.Text).trimmed();
  description.Control->setAccessibleName(title);
  description.Control->setAccessibleDescription(text);
}

}  // namespace

FormControls::FormControls(QWidget& form, const EasyButtonServices& services)
    : TopBar(new ImageBar(&form)),
      BottomBar(new ImageBar(&form)),
      Title(MakeLabel(form)),
      Browse(new QFrame(&form)),
      Folders(new FolderTreeView(Browse, services.Files)),
      Operations(new OperationsView(&form)),
      FileList(new FileListView(&form)),
      Keywords(new QComboBox(&form)),
      FileStatus(MakeLabel(form)),
      Status(MakeLabel(form)),
      ListFiles(MakeButton(form, services, TextNumber::ListFiles)),
      ListFolders(MakeButton(form, services, TextNumber::ListFolders)),
      ThisFolderOnly(MakeButton(form, services, TextNumber::ThisFolderOnly)),
      IncludeSubFolders(MakeButton(form, services, TextNumber::IncludeSubFolders)),
      DoOne(MakeButton(form, services, TextNumber::DoOne)),
      DoAll(MakeButton(form, services, TextNumber::DoAll)),
      WildCard(new QComboBox(&form)),
      Progress(new QProgressBar(&form)),
      Exit(MakeButton(form, services, TextNumber::Exit)),
      Help(MakeButton(form, services, TextNumber::FirstToolTip + 14)),
      Undo(MakeButton(form, services, TextNumber::FirstToolTip + 15)),
      Go(MakeButton(form, services, TextNumber::Go)),
      Stop(MakeButton(form, services, TextNumber::Stop)) {
  auto* inside = new QVBoxLayout(Browse);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(Folders);
  Title->setText(ToQString(ApplicationTitle));
  Progress->setTextVisible(false);
  Progress->setRange(0, 100);
  WildCard->setEditable(true);
  WildCard->setInsertPolicy(QComboBox::NoInsert);
  WildCard->setCompleter(nullptr);  // it would turn "*.m" into the item "*.mp3"
  Undo->setEnabled(false);
  for (BoxControls& box : Boxes) {
    box.Caption = MakeLabel(form);
    box.Content = new QLineEdit(&form);
    box.Check = new QCheckBox(&form);
    box.Caption->setBuddy(box.Content);
  }
  for (QLabel*& label : HelpLabels) {
    label = MakeLabel(form);
  }
  GiveNames();
  DescribeForAccessibility();
}

void FormControls::GiveNames() {
  const std::pair<QWidget*, const char*> names[] = {
      {TopBar, "imgTopBar"},
      {BottomBar, "imgBottomBar"},
      {Title, "lblTitle"},
      {Browse, "picBrowse"},
      {Folders, "tvwFolders"},
      {Operations, "lstRenamingOperations"},
      {FileList, "lstFileList"},
      {Keywords, "cboKeywords"},
      {FileStatus, "lblFileStatus"},
      {Status, "lblStatus"},
      {ListFiles, "cmdListFiles"},
      {ListFolders, "cmdListFolders"},
      {ThisFolderOnly, "cmdThisFolderOnly"},
      {IncludeSubFolders, "cmdIncludeSubFolders"},
      {DoOne, "cmdDoOne"},
      {DoAll, "cmdDoAll"},
      {WildCard, "cboWildCard"},
      {Progress, "objProgressBar"},
      {Exit, "cmdExit"},
      {Help, "cmdHelp"},
      {Undo, "cmdUndo"},
      {Go, "cmdGo"},
      {Stop, "cmdStop"},
  };
  for (const auto& [control, name] : names) {
    control->setObjectName(QLatin1String(name));
  }
  for (int box = 0; box < OptionBoxCount; ++box) {
    const BoxControls& controls = Boxes[static_cast<std::size_t>(box)];
    controls.Caption->setObjectName(NameInGroup("lblRenameOption", box));
    controls.Content->setObjectName(NameInGroup("txtRenameOption", box));
    controls.Check->setObjectName(NameInGroup("chkRenameOption", box));
  }
  for (int label = 0; label < HelpLabelCount; ++label) {
    HelpLabels[static_cast<std::size_t>(label)]->setObjectName(NameInGroup("lblToolTip", label));
  }
}

void FormControls::DescribeForAccessibility() {
  for (const Description& description : {Description{Go, 0, 1},
                                         {Stop, 0, 1},
                                         {ListFiles, 2, 3},
                                         {ListFolders, 2, 4},
                                         {ThisFolderOnly, 5, 6},
                                         {IncludeSubFolders, 5, 7},
                                         {DoOne, 8, 9},
                                         {DoAll, 8, 10},
                                         {WildCard, 11, 12},
                                         {Exit, 13, 12},
                                         {Help, 14, 12},
                                         {Undo, 15, 16},
                                         {Operations, 17, 18},
                                         {Folders, 19, 18}}) {
    Describe(description);
  }
  for (const auto& [control, name] : {std::pair<QWidget*, int>{FileList, TextNumber::FileListName},
                                      {Keywords, TextNumber::KeywordList},
                                      {Status, TextNumber::StatusName},
                                      {FileStatus, TextNumber::FileStatusName},
                                      {Progress, TextNumber::ProgressName}}) {
    control->setAccessibleName(TextOf(name));
  }
}

std::vector<QWidget*> FormControls::TabChain() const {
  std::vector<QWidget*> chain = {Folders, Operations, FileList};
  for (const BoxControls& box : Boxes) {
    chain.push_back(box.Content);
    chain.push_back(box.Check);
  }
  for (QWidget* control :
       {static_cast<QWidget*>(Keywords), static_cast<QWidget*>(WildCard),
        static_cast<QWidget*>(ListFiles), static_cast<QWidget*>(ListFolders),
        static_cast<QWidget*>(ThisFolderOnly), static_cast<QWidget*>(IncludeSubFolders),
        static_cast<QWidget*>(DoOne), static_cast<QWidget*>(DoAll), static_cast<QWidget*>(Go),
        static_cast<QWidget*>(Stop), static_cast<QWidget*>(Undo), static_cast<QWidget*>(Help),
        static_cast<QWidget*>(Exit)}) {
    chain.push_back(control);
  }
  return chain;
}

QString NameInGroup(const char* group, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(group)).arg(index);
}

}  // namespace vorlane
