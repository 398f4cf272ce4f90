#include "ui/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "ui/qt_text.h"

namespace vorlane {

void QtClipboard::Clear() {
  QGuiApplication::clipboard()->clear();
}

void QtClipboard::SetText(TextView text) {
  QGuiApplication::clipboard()->setText(ToQString(text));
}

}  // namespace vorlane
