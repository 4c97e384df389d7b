#include "dialogs/frm_about.h"

#include "dialogs/version_text.h"
#include "picture/warn.h"
#include "platform/forms/application.h"
#include "platform/system/environment.h"
#include "platform/system/paths.h"

namespace mill {

AboutForm::AboutForm()
    : Form({.Name = "frmAbout",
            .Caption = "About Raster Mill",
            .BorderStyle = forms::Border::FixedDialog,
            .Client = {6735, 3855},
            .Position = forms::StartUpPosition::CentreOwner,
            .Icon = true}) {}

void AboutForm::Form_Load() {
  lblVersion.setCaption(versionText());
}

void AboutForm::cmdReadme_Click() {
  const std::string readMe = forms::join(forms::App.Path(), "readme.txt");
  if (!forms::openWithViewer(readMe)) warn("The read-me file can't be opened.");
}

}  // namespace mill
