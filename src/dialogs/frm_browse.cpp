#include "dialogs/frm_browse.h"

#include "dialogs/start_place.h"
#include "picture/program_state.h"

namespace mill {

BrowseForm::BrowseForm()
    : Form({.Name = "frmBrowse",
            .Caption = "Browse for Source Directory",
            .Client = {3825, 2865},
            .Position = forms::StartUpPosition::CentreOwner,
            .Icon = true}) {}

void BrowseForm::Form_Activate() {
  startAt(*Drive1, *Dir1, state.BrowseResult);
}

void BrowseForm::OKButton_Click() {
  state.BrowseResult = Dir1->Path();
  hide();
}

void BrowseForm::CancelButton_Click() {
  state.BrowseResult.clear();
  hide();
}

}  // namespace mill
