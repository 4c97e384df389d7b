#include <QAction>

#include "conversion/frm_convert.h"
#include "conversion/frm_info.h"
#include "conversion/frm_preview_toolbar.h"
#include "conversion/show_preview.h"
#include "dialogs/frm_about.h"
#include "mainwindow/frm_main.h"
#include "mainwindow/frm_options.h"
#include "palette/frm_colour.h"
#include "palette/frm_pal_toolbar.h"
#include "picture/hooks.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "platform/forms/hourglass.h"
#include "platform/system/paths.h"

namespace mill {

void MainForm::cmdOpen_Click() {
  if (!state.ShowPrev) return;
  const forms::Hourglass hourglass;
  OpenPicture(sys::join(filSource->Path(), filSource->FileName()));
  renewPreview();
  enableOpen(false);
  enableInfo(true);
  if (state.IsStandardBitmap) enableConvert(false);
}

void MainForm::cmdConvert_Click() {
  frmConvert->showModal(this);
  enableOpen(false);
  enableConvert(false);
}

void MainForm::cmdPalette_Click() {
  frmColour->showModal(this);
}

void MainForm::cmdBatch_Click() {
  frmConvert->showModal(this);
  enableOpen(false);
  enableConvert(false);
  enableBatch(false);
}

void MainForm::cmdInfo_Click() {
  frmInfo->showModal(this);
}

void MainForm::mnuOptions_Click() {
  frmOptions->showModal(this);
}

void MainForm::mnuAbout_Click() {
  frmAbout->show();
}

/// The main window is active again afterwards.
void MainForm::showToolWindow(forms::Form& window, bool shown) {
  window.setVisible(shown);
  if (shown) show();
}

// A box that is disabled keeps its tick and its flag.

void MainForm::chkPrev_Click() {
  state.ShowPrev = chkPrev->isChecked();
  chkAutoPrev->setEnabled(state.ShowPrev);
  chkResize->setEnabled(state.ShowPrev);
  cmdOpen->setEnabled(state.ShowPrev);
  showToolWindow(*frmPreviewToolbar, state.ShowPrev);
}

void MainForm::chkResize_Click() {
  state.ResizeFit = chkResize->isChecked();
  if (state.ResizeFit && !state.PictureFileName.empty()) {
    hooks.fitPreview(state.PictureRecord.biWidth, state.PictureRecord.biHeight);
  }
}

void MainForm::chkPal_Click() {
  state.ShowPal = chkPal->isChecked();
  showToolWindow(*frmPalToolbar, state.ShowPal);
}

void MainForm::chkAutoPal_Click() {
  state.AutoPal = chkAutoPal->isChecked();
  chkSearch->setEnabled(state.AutoPal);
}

// Each command has a button and a menu item, which are enabled together.

void MainForm::enableOpen(bool enabled) {
  cmdOpen->setEnabled(enabled);
  mnuOpen->setEnabled(enabled);
}

void MainForm::enableConvert(bool enabled) {
  cmdConvert->setEnabled(enabled);
  mnuConvert->setEnabled(enabled);
}

void MainForm::enableBatch(bool enabled) {
  cmdBatch->setEnabled(enabled);
  mnuBatch->setEnabled(enabled);
}

void MainForm::enableInfo(bool enabled) {
  cmdInfo->setEnabled(enabled);
  mnuInfo->setEnabled(enabled);
}

}  // namespace mill
