#include "dialogs/frm_browse.h"

#include "picture/program_state.h"
#include "platform/paths.h"

namespace mill {

BrowseForm::BrowseForm()
    : Form({.Name = "frmBrowse",
            .Caption = "Browse for Source Directory",
            .BorderStyle = forms::Border::FixedDialog,
            .Client = {3825, 2865},
            .Position = forms::StartUpPosition::CentreOwner}) {}

void BrowseForm::Form_Activate() {
  if (state.BrowseResult.empty()) return;
  const std::string seed = forms::drivePath(state.BrowseResult);
  Drive1.setDrive(seed.substr(0, 2));
  Dir1.setPath(seed);
}

void BrowseForm::OKButton_Click() {
  state.BrowseResult = Dir1.Path();
  Hide();
}

void BrowseForm::CancelButton_Click() {
  state.BrowseResult.clear();
  Hide();
}

}  // namespace mill
