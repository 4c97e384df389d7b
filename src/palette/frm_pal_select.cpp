#include "palette/frm_pal_select.h"

#include "conversion/show_preview.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"

namespace mill {

PalSelectForm::PalSelectForm()
    : Form({.Name = "frmPalSelect",
            .Caption = "Palette Selection",
            .BorderStyle = forms::Border::FixedSingle,
            .Client = {7335, 2655},
            .Position = forms::StartUpPosition::CentreOwner,
            .ControlBox = false}) {}

void PalSelectForm::lstPalette_Click() {
  const bool chosen = lstPalette.SelCount() > 0;
  cmdOK.setEnabled(chosen);
  cmdPrev.setEnabled(chosen);
}

void PalSelectForm::cmdPrev_Click() {
  const std::string saved = state.CurrentPaletteFile;
  state.CurrentPaletteFile = lstPalette.Text();
  LoadPalette();
  renewPreview();
  // Only the path goes back: the search loads the chosen palette when the dialog has ended.
  state.CurrentPaletteFile = saved;
}

void PalSelectForm::cmdDefault_Click() {
  state.CurrentPaletteFile = state.DefaultPalette;
  Unload();
}

void PalSelectForm::cmdOK_Click() {
  state.CurrentPaletteFile = lstPalette.Text();
  Unload();
}

void selectPalette(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) frmPalSelect->addPalette(path);
  frmPalSelect->Show(forms::vbModal);
}

}  // namespace mill
