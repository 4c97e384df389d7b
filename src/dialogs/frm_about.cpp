#include "dialogs/frm_about.h"

#include "picture/warn.h"
#include "platform/system/application.h"
#include "platform/system/paths.h"

namespace mill {

AboutForm::AboutForm()
    : Form({.Name = "frmAbout",
            .Caption = "About Raster Mill",
            .Client = {6735, 3855},
            .Position = forms::StartUpPosition::CentreOwner,
            .Icon = true}) {}

void AboutForm::cmdReadme_Click() {
  const std::string readMe = sys::join(sys::App.Path(), "readme.txt");
  if (!sys::openWithViewer(readMe)) warn("The read-me file can't be opened.");
}

}  // namespace mill
