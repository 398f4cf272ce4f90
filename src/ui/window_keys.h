// The keys that mean something to the window as a whole, wherever the focus is in it.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <functional>

#include "ui/frm_main.h"

namespace vorlane {

class WindowKeys final : public QObject {
 public:
  // Watches the window's keys while it lives.
  explicit WindowKeys(FrmMain& window);

  std::function<void()> OnGo;                 // ENTER
  std::function<void()> OnStop;               // Escape
  std::function<void()> OnUndo;               // Ctrl+Z
  std::function<void()> OnHelp;               // F1
  std::function<void()> OnListAnew;           // F5
  std::function<void()> OnMenu;               // the menu key, or Shift+F10
  std::function<void()> OnClose;              // Ctrl+Q
  std::function<bool()> OnTab;                // true if the focus went to an option box
  std::function<void(bool back)> OnNextPane;  // F6

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& key);

  FrmMain& window_;
};

}  // namespace vorlane
