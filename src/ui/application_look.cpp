#include "ui/application_look.h"

#include <QApplication>
#include <QFont>

namespace vorlane {

void SetApplicationLook() {
  constexpr int Pixels = 11;
  const QString standard = QStringLiteral("MS Sans Serif");
  const QStringList substitutes = {QStringLiteral("Liberation Sans"),
                                   QStringLiteral("DejaVu Sans")};
  QFont::insertSubstitutions(standard, substitutes);
  QFont::insertSubstitutions(QStringLiteral("Trebuchet MS"), substitutes);
  QFont font(standard);
  font.setPixelSize(Pixels);
  QApplication::setFont(font);
}

}  // namespace vorlane
