#include "dialogs/frm_splash.h"

#include "dialogs/version_text.h"
#include "platform/forms/application.h"

namespace mill {

SplashForm::SplashForm()
    : Form({.Name = "frmSplash",
            .Caption = "",
            .BorderStyle = forms::Border::FixedDialog,
            .Client = {7380, 4245},
            .Position = forms::StartUpPosition::CentreScreen,
            .ControlBox = false}) {}

void SplashForm::Form_Load() {
  lblVersion.setCaption(versionText());
  lblProductName.setCaption(forms::App.Title);
}

}  // namespace mill
