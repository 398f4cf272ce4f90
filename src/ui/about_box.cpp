#include "ui/about_box.h"

#include <QDesktopServices>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QUrl>
#include <QVBoxLayout>

#include "platform/interface_texts.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

QString TextOf(int number) {
  return ToQString(InterfaceText(number));
}

template <typename Control>
Control* Named(Control* control, const char* name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

}  // namespace

AboutBox::AboutBox(const AboutBoxServices& services, const UpdateCheckSettings& settings,
                   QWidget* parent)
    : QDialog(parent),
      lblTitle_(Named(new QLabel(this), "lblTitle")),
      lblVersion_(Named(new QLabel(this), "lblversion")),
      lblUrl_(Named(new LinkLabel(this), "lblURL")),
      lblUpdate_(Named(new LinkLabel(this), "lblUpdate")),
      cmdOk_(Named(new QPushButton(this), "cmdOK")),
      cmdExit_(Named(new QPushButton(this), "cmdExit")),
      dataArrival_([this, &gate = services.Gate] { gate.Run([this] { check_.DataArrival(); }); }),
      check_({services.Sockets, dataArrival_, services.Proxy, services.Time, services.Loop,
              services.Prompts, services.IsConnected},
             *this, settings) {
  setObjectName(QStringLiteral("frmAbout"));
  GiveTexts(settings.Version);
  PlaceControls();
  lblUrl_->OnClick = [open = services.OpenAddress] { open(ToQString(VendorAddress)); };
  lblUpdate_->OnClick = [this, &gate = services.Gate] {
    gate.Run([this] { check_.lblUpdate_Click(); });
  };
  connect(cmdOk_, &QPushButton::clicked, this, [this] { close(); });
  connect(cmdExit_, &QPushButton::clicked, this, [this] {
    close();
    if (OnExit) {
      OnExit();
    }
  });
}

void AboutBox::GiveTexts(const Text& version) {
  const QString title = ToQString(ApplicationTitle);
  setWindowTitle(title + QStringLiteral(" - ") + TextOf(TextNumber::About));
  lblTitle_->setText(title);
  lblVersion_->setText(TextOf(TextNumber::Version) + ToQString(version));
  lblUrl_->setText(ToQString(VendorAddress));
  lblUpdate_->setText(TextOf(TextNumber::CheckForUpdate));
  cmdOk_->setText(TextOf(TextNumber::Ok));
  cmdExit_->setText(TextOf(TextNumber::Exit));
  QFont large = font();
  large.setBold(true);
  large.setPixelSize(QFontInfo(large).pixelSize() * 2);
  lblTitle_->setFont(large);
}

void AboutBox::PlaceControls() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(32, 24, 32, 16);
  column->setSpacing(8);
  column->setSizeConstraint(QLayout::SetFixedSize);
  for (QLabel* label :
       {lblTitle_, lblVersion_, static_cast<QLabel*>(lblUrl_), static_cast<QLabel*>(lblUpdate_)}) {
    label->setTextFormat(Qt::PlainText);
    column->addWidget(label, 0, Qt::AlignHCenter);
  }
  column->addSpacing(12);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdOk_);
  buttons->addWidget(cmdExit_);
  column->addLayout(buttons);
  cmdExit_->setAutoDefault(false);
  cmdOk_->setDefault(true);
  cmdOk_->setFocus();
}

void AboutBox::SetUpdateCaption(TextView caption) {
  lblUpdate_->setText(ToQString(caption));
  lblUpdate_->repaint();
}

// The link that was clicked has a pointer of its own, and the mouse is on it.
void AboutBox::SetHourglass(bool shown) {
  if (shown) {
    setCursor(Qt::WaitCursor);
  } else {
    unsetCursor();
  }
  lblUpdate_->setCursor(shown ? Qt::WaitCursor : Qt::PointingHandCursor);
}

void OpenInBrowser(const QString& address) {
  if (!address.isEmpty()) {
    QDesktopServices::openUrl(QUrl(address));
  }
}

}  // namespace vorlane
