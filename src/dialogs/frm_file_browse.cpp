#include "dialogs/frm_file_browse.h"

#include "picture/program_state.h"
#include "platform/paths.h"

namespace mill {

FileBrowseForm::FileBrowseForm()
    : Form({.Name = "frmFileBrowse",
            .Caption = "Browse for File",
            .BorderStyle = forms::Border::FixedDialog,
            .Client = {6030, 2895},
            .Position = forms::StartUpPosition::Manual,
            .At = {2760, 3750}}) {}

void FileBrowseForm::Form_Activate() {
  if (!state.BrowseResult.empty()) {
    const std::string seed = forms::drivePath(state.BrowseResult);
    Drive1.setDrive(seed.substr(0, 2));
    Dir1.setPath(seed.substr(0, seed.rfind('\\') + 1));
  }
  File1.setPattern(state.FilePattern);
}

void FileBrowseForm::cmdOK_Click() {
  state.BrowseResult = Dir1.Path();
  state.FileResult = File1.FileName();
  Hide();
}

void FileBrowseForm::cmdCancel_Click() {
  state.BrowseResult.clear();
  state.FileResult.clear();
  Hide();
}

}  // namespace mill
