#include "conversion/frm_convert.h"
#include "conversion/frm_info.h"
#include "conversion/frm_preview_toolbar.h"
#include "conversion/show_preview.h"
#include "dialogs/frm_about.h"
#include "mainwindow/frm_main.h"
#include "mainwindow/frm_options.h"
#include "palette/frm_colour.h"
#include "palette/frm_pal_toolbar.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "platform/forms/application.h"
#include "platform/system/paths.h"

namespace mill {

void MainForm::cmdOpen_Click() {
  if (!state.ShowPrev) return;
  const forms::Hourglass hourglass;
  OpenPicture(forms::join(filSource.Path(), filSource.FileName()));
  renewPreview();
  enableOpen(false);
  enableInfo(true);
  if (state.IsStandardBitmap) enableConvert(false);
}

void MainForm::cmdConvert_Click() {
  frmConvert->Show(forms::vbModal, *this);
  enableOpen(false);
  enableConvert(false);
}

void MainForm::cmdPalette_Click() {
  frmColour->Show(forms::vbModal, *this);
}

void MainForm::cmdBatch_Click() {
  frmConvert->Show(forms::vbModal, *this);
  enableOpen(false);
  enableConvert(false);
  enableBatch(false);
}

void MainForm::cmdInfo_Click() {
  frmInfo->Show(forms::vbModal, *this);
}

void MainForm::mnuOptions_Click() {
  frmOptions->Show(forms::vbModal, *this);
}

void MainForm::mnuAbout_Click() {
  frmAbout->Show();
}

/// Afterwards the main window is the active one again.
void MainForm::showToolWindow(forms::Form& window, bool shown) {
  if (!shown) return window.Hide();
  window.Show();
  Show();
}

// A box that is disabled keeps its tick and its flag.

void MainForm::chkPrev_Click() {
  state.ShowPrev = chkPrev.Value() == 1;
  chkAutoPrev.setEnabled(state.ShowPrev);
  chkResize.setEnabled(state.ShowPrev);
  cmdOpen.setEnabled(state.ShowPrev);
  showToolWindow(*frmPreviewToolbar, state.ShowPrev);
}

void MainForm::chkAutoPrev_Click() {
  state.AutoPrev = chkAutoPrev.Value() == 1;
}

void MainForm::chkResize_Click() {
  state.ResizeFit = chkResize.Value() == 1;
  if (state.ResizeFit && !state.PictureFileName.empty()) {
    fitPreview(state.PictureRecord.biWidth, state.PictureRecord.biHeight);
  }
}

void MainForm::chkPal_Click() {
  state.ShowPal = chkPal.Value() == 1;
  showToolWindow(*frmPalToolbar, state.ShowPal);
}

void MainForm::chkAutoPal_Click() {
  state.AutoPal = chkAutoPal.Value() == 1;
  chkSearch.setEnabled(state.AutoPal);
}

void MainForm::chkSearch_Click() {
  state.Search = chkSearch.Value() == 1;
}

// Each command is a button and a menu item, switched together.

void MainForm::enableOpen(bool enabled) {
  cmdOpen.setEnabled(enabled);
  mnuOpen.setEnabled(enabled);
}

void MainForm::enableConvert(bool enabled) {
  cmdConvert.setEnabled(enabled);
  mnuConvert.setEnabled(enabled);
}

void MainForm::enableBatch(bool enabled) {
  cmdBatch.setEnabled(enabled);
  mnuBatch.setEnabled(enabled);
}

void MainForm::enableInfo(bool enabled) {
  cmdInfo.setEnabled(enabled);
  mnuInfo.setEnabled(enabled);
}

}  // namespace mill
