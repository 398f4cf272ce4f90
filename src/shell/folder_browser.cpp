#include "shell/folder_browser.h"

#include "batch/undo_journal.h"

namespace vorlane {

namespace {

Text RootFolder(PathStyle style) {
  return style == PathStyle::Windows ? u"C:\\" : u"/";
}

}  // namespace

void FolderBrowser::ShowFolderBrowser(TextView folder) {
  form_.CurrentPath = EnsureTrailingSeparator(folder, form_.Paths);
  SelectBrowserFolder(form_.CurrentPath);
}

void FolderBrowser::SelectBrowserFolder(TextView path) {
  const Text folder = EnsureTrailingSeparator(path, form_.Paths);
  tree_.ShowFolder(folder);
  SelectionChanged(folder);
}

void FolderBrowser::SelectionChanged(TextView path) {
  if (path.empty()) {
    return;
  }
  if (form_.RunIsAtWork()) {
    tree_.ShowFolder(form_.CurrentPath);
    return;
  }
  Attempt([&] {
    if (FolderExists(services_.Files, form_.CurrentPath) &&
        JournalExists(services_.Files, form_.CurrentPath)) {
      services_.Files.RemoveFile(JournalPath(form_.CurrentPath));
    }
  });
  form_.CurrentPath = EnsureTrailingSeparator(path, form_.Paths);
  const Text root = RootFolder(form_.Paths);
  if (!FolderExists(services_.Files, form_.CurrentPath) && form_.CurrentPath != root) {
    SelectBrowserFolder(root);
    return;
  }
  form_.IncludeSubFolders = false;
  form_.View.ModesChanged();
  list_.PathChangedEvent();
}

void FolderBrowser::FolderDropped(const std::vector<Text>& paths) {
  if (paths.size() != 1 || form_.RunIsAtWork() || !FolderExists(services_.Files, paths.front())) {
    return;
  }
  form_.CurrentPath = EnsureTrailingSeparator(paths.front(), form_.Paths);
  SelectBrowserFolder(form_.CurrentPath);
}

}  // namespace vorlane
