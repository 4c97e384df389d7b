#include "palette/frm_pal_select.h"

#include "conversion/show_preview.h"
#include "picture/hooks.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "platform/forms/plain_text.h"

namespace mill {

PalSelectForm::PalSelectForm()
    : Form({.Name = "frmPalSelect",
            .Caption = "Palette Selection",
            .Client = {7335, 2655},
            .Position = forms::StartUpPosition::CentreOwner,
            .ControlBox = false}) {
  // Long paths usually differ at the end.
  lstPalette->setTextElideMode(Qt::ElideLeft);
  lstPalette->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PalSelectForm::offer(const QStringList& paths, const QString& picture) {
  lstPalette->setTexts(paths);
  setToolTip(forms::plainToolTip(picture));
  setAccessibleDescription(picture);
}

void PalSelectForm::lstPalette_Click() {
  const bool isChosen = lstPalette->selectionModel()->hasSelection();
  for (QPushButton* button : {cmdOK, cmdPrev}) button->setEnabled(isChosen);
}

void PalSelectForm::cmdPrev_Click() {
  const std::string saved = state.CurrentPaletteFile;
  state.CurrentPaletteFile = selectedPath();
  LoadPalette();
  renewPreview();
  // Restore only the path: the search loads the chosen palette when the dialog has closed.
  state.CurrentPaletteFile = saved;
}

void PalSelectForm::cmdDefault_Click() {
  state.CurrentPaletteFile = state.DefaultPalette;
  Unload();
}

void PalSelectForm::cmdOK_Click() {
  state.CurrentPaletteFile = selectedPath();
  Unload();
}

void selectPalette(const std::vector<std::string>& paths) {
  QStringList texts;
  for (const std::string& path : paths) texts.append(sys::shown(path));
  const std::string inRun = hooks.whichPicture();
  frmPalSelect->offer(texts, sys::shown(inRun.empty() ? state.PictureSourceFile : inRun));
  frmPalSelect->showModal();
}

}  // namespace mill
