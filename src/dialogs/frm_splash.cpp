#include "dialogs/frm_splash.h"

#include <QMouseEvent>
#include <QPixmap>

namespace mill {

SplashForm::SplashForm()
    : Form({.Name = "frmSplash",
            .Caption = "",
            .Client = {7380, 4245},
            .Position = forms::StartUpPosition::CentreScreen,
            .ControlBox = false}) {
  imgLogo->setPixmap(QPixmap(QStringLiteral(":/logo.png")));
  imgLogo->setScaledContents(true);
}

void SplashForm::mouseReleaseEvent(QMouseEvent* event) {
  if (Frame1->geometry().contains(event->position().toPoint())) Unload();
}

}  // namespace mill
