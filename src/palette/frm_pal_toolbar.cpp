#include "palette/frm_pal_toolbar.h"

#include "picture/hooks.h"
#include "picture/program_state.h"
#include "platform/system/paths.h"

namespace mill {

PalToolbarForm::PalToolbarForm()
    : Form({.Name = "frmPalToolbar",
            .Caption = "Palette",
            .Client = {1920, 1935},
            .BorderStyle = forms::Border::FixedTool}) {}

void PalToolbarForm::Form_Load() {
  hooks.updateSwatches = [this] { update(); };
}

void PalToolbarForm::update() {
  palette1->setColours(state.PaletteTable);
  setCaption("Palette (" + std::string(sys::fileNameOf(state.CurrentPaletteFile)) + ")");
}

}  // namespace mill
