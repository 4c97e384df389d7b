#include "dialogs/frm_file_browse.h"

#include "dialogs/start_place.h"
#include "picture/program_state.h"

namespace mill {

FileBrowseForm::FileBrowseForm()
    : Form({.Name = "frmFileBrowse",
            .Caption = "Browse for File",
            .Client = {6030, 2895},
            .Position = forms::StartUpPosition::Manual,
            .Icon = true,
            .At = {2760, 3750}}) {}

void FileBrowseForm::Form_Activate() {
  startAtFile(*Drive1, *Dir1, state.BrowseResult);
  File1->setPattern(state.FilePattern);
}

void FileBrowseForm::cmdOK_Click() {
  if (!isStillThere(*Drive1, *Dir1)) return;
  state.BrowseResult = Dir1->Path();
  state.FileResult = File1->FileName();
  hide();
}

void FileBrowseForm::cmdCancel_Click() {
  state.BrowseResult.clear();
  state.FileResult.clear();
  hide();
}

}  // namespace mill
