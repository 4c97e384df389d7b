#include "dialogs/frm_save.h"

#include "dialogs/start_place.h"
#include "picture/program_state.h"
#include "platform/system/text.h"

namespace mill {

SaveForm::SaveForm()
    : Form({.Name = "frmSave",
            .Caption = "Save File",
            .Client = {5985, 3495},
            .Position = forms::StartUpPosition::CentreOwner,
            .Icon = true}) {}

void SaveForm::Form_Activate() {
  startAtFile(*Drive1, *Dir1, state.BrowseResult);
  File1->setPattern(state.FilePattern);
}

void SaveForm::cmdOK_Click() {
  if (txtFilename->text().isEmpty() || !isStillThere(*Drive1, *Dir1)) return;
  state.BrowseResult = Dir1->Path();
  state.FileResult = sys::bytesOf(txtFilename->text());
  hide();
}

void SaveForm::cmdCancel_Click() {
  state.BrowseResult.clear();
  state.FileResult.clear();
  hide();
}

}  // namespace mill
