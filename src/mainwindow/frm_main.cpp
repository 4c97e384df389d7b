#include "mainwindow/frm_main.h"

#include "conversion/frm_convert.h"
#include "conversion/frm_preview_toolbar.h"
#include "mainwindow/program_settings.h"
#include "palette/frm_pal_select.h"
#include "palette/frm_pal_toolbar.h"
#include "picture/find_palette.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "platform/forms/application.h"
#include "platform/system/files.h"

namespace mill {

MainForm::MainForm()
    : Form({.Name = "frmMain",
            .Caption = "Raster Mill",
            .BorderStyle = forms::Border::FixedSingle,
            .Client = {8535, 4815},
            .Position = forms::StartUpPosition::CentreScreen,
            .MinButton = true,
            .Icon = true}) {}

void MainForm::Form_Load() {
  readSettings();
  if (!forms::hasFiles(state.SourceDir)) state.SourceDir = forms::App.Path();
  frmConvert.Load();
  frmConvert->sourceDirectory = [this] { return filSource.Path(); };
  frmConvert->destinationDirectory = [this] { return lstDest.Text(); };
  frmPalToolbar.Load();
  frmPreviewToolbar.Load();
  choosePalette = selectPalette;
  showPaletteFile = [this] { lblPalFile.setCaption(state.CurrentPaletteFile); };
  fillBoxes();
  loadDefaultPalette();
  setCheckBoxes();
  started_ = true;
}

void MainForm::fillBoxes() {
  const auto fill = [](forms::ComboBox& box, const std::string& value) {
    box.AddItem(value);
    box.setText(value);
  };
  fill(lstSource, state.SourceDir);
  fill(lstDest, state.DestDir);
  fill(lstPalette, state.PalDir);
  fill(lstDefault, state.DefaultPalette);
}

void MainForm::loadDefaultPalette() {
  state.CurrentPaletteFile = state.DefaultPalette;
  LoadPalette();
  showPaletteFile();
}

void MainForm::setCheckBoxes() {
  chkPal.setValue(state.ShowPal);
  chkPrev.setValue(state.ShowPrev);
  chkAutoPrev.setValue(state.AutoPrev);
  chkAutoPal.setValue(state.AutoPal);
  chkResize.setValue(state.ResizeFit);
  chkSearch.setValue(state.Search);
}

void MainForm::Form_Unload() {
  // The last loaded goes first; this window is the first of all.
  for (int i = forms::Forms.Count() - 1; i >= 1; --i) forms::Forms[i].Unload();
  choosePalette = {};
  showPaletteFile = {};
  state.PreviewDC.reset();
  writeSettings();
}

void MainForm::Form_Resize() {
  const auto eachToolWindow = [](auto act) {
    if (state.ShowPal) act(*frmPalToolbar);
    if (state.ShowPrev) act(*frmPreviewToolbar);
  };
  if (WindowState() == forms::WindowState::Minimised) {
    eachToolWindow([](forms::Form& window) { window.Hide(); });
  } else if (WindowState() == forms::WindowState::Normal) {
    eachToolWindow([](forms::Form& window) { window.Show(); });
  }
}

}  // namespace mill
