// What a tool tip shows on the screen: a small window without frame that takes neither focus nor
// mouse. A balloon gets its shape by a mask, since no compositor may be running.
#pragma once

#include <QFont>
#include <QPainterPath>
#include <QWidget>

#include "ui/tip_placement.h"

namespace vorlane {

enum class TipIcon : unsigned char { None, Information, Warning, Error };

struct TipContent {
  TipIcon Icon = TipIcon::None;
  QString Title;
  QString Text;  // without any text there is no tip
};

class TipWindow final : public QWidget {
 public:
  // Belongs to that control and goes with it.
  TipWindow(QWidget& control, bool balloon);

  void SetContent(const TipContent& content);
  const TipContent& Content() const { return content_; }
  void SetBackColor(const QColor& color);
  void SetForeColor(const QColor& color);
  void SetTextFont(const QFont& font);

  bool IsBalloon() const { return balloon_; }

  // Stands there, with its stem's point or its corner at the anchor (on the screen), from now on.
  // `centered`: below the anchor's middle, whatever side is wanted.
  void PlaceAt(QPoint anchor, TipSide side, bool centered);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Blocks {
    QRect Icon;
    QRect Title;
    QRect Text;
    QSize Body;
  };

  QFont TitleFont() const;
  Blocks Arrange() const;
  QPainterPath Outline() const;
  void TakeShape();

  const bool balloon_;
  TipContent content_;
  TipPlace place_;
};

}  // namespace vorlane
