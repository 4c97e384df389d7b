#include "palette/frm_pal_toolbar.h"

#include "palette/show_colours.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "platform/system/paths.h"

namespace mill {

PalToolbarForm::PalToolbarForm()
    : Form({.Name = "frmPalToolbar",
            .Caption = "Palette",
            .BorderStyle = forms::Border::FixedToolWindow,
            .Client = {1920, 1935}}) {}

void PalToolbarForm::Form_Load() {
  updateSwatches = [this] { update(); };
}

void PalToolbarForm::Form_Unload() {
  updateSwatches = {};
}

void PalToolbarForm::update() {
  showColours(palette1, state.PaletteTable);
  setCaption("Palette (" + std::string(forms::fileNameOf(state.CurrentPaletteFile)) + ")");
}

}  // namespace mill
