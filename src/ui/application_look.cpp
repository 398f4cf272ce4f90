#include "ui/application_look.h"

#include <QApplication>
#include <QFont>

namespace vorlane {

namespace {

constexpr const char* StandardFamily = "MS Sans Serif";

}  // namespace

QFont StandardFont() {
  constexpr int Pixels = 11;
  QFont font(QString::fromLatin1(StandardFamily));
  font.setPixelSize(Pixels);
  return font;
}

void SetApplicationLook() {
  const QStringList substitutes = {QStringLiteral("Liberation Sans"),
                                   QStringLiteral("DejaVu Sans")};
  QFont::insertSubstitutions(QString::fromLatin1(StandardFamily), substitutes);
  QFont::insertSubstitutions(QStringLiteral("Trebuchet MS"), substitutes);
  QApplication::setFont(StandardFont());
}

}  // namespace vorlane
