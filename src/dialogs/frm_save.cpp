#include "dialogs/frm_save.h"

#include "dialogs/start_place.h"
#include "picture/program_state.h"

namespace mill {

SaveForm::SaveForm()
    : Form({.Name = "frmSave",
            .Caption = "Save File",
            .BorderStyle = forms::Border::FixedDialog,
            .Client = {5985, 3495},
            .Position = forms::StartUpPosition::CentreOwner,
            .Icon = true}) {}

void SaveForm::Form_Activate() {
  if (!state.BrowseResult.empty()) startAtFile(Drive1, Dir1, state.BrowseResult);
  File1.setPattern(state.FilePattern);
}

void SaveForm::cmdOK_Click() {
  if (txtFilename.Text().empty()) return;
  state.BrowseResult = Dir1.Path();
  state.FileResult = txtFilename.Text();
  Hide();
}

void SaveForm::cmdCancel_Click() {
  state.BrowseResult.clear();
  state.FileResult.clear();
  Hide();
}

}  // namespace mill
