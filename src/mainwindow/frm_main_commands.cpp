#include "conversion/frm_convert.h"
#include "mainwindow/frm_main.h"
#include "picture/program_state.h"

namespace mill {

void MainForm::cmdOpen_Click() {}

void MainForm::cmdConvert_Click() {
  frmConvert->Show(forms::vbModal, *this);
  enableOpen(false);
  enableConvert(false);
}

void MainForm::cmdBatch_Click() {
  frmConvert->Show(forms::vbModal, *this);
  enableOpen(false);
  enableConvert(false);
  enableBatch(false);
}

// A box that is disabled keeps its tick and its flag.

void MainForm::chkPrev_Click() {
  state.ShowPrev = chkPrev.Value() == 1;
  chkAutoPrev.setEnabled(state.ShowPrev);
  chkResize.setEnabled(state.ShowPrev);
  cmdOpen.setEnabled(state.ShowPrev);
}

void MainForm::chkAutoPrev_Click() {
  state.AutoPrev = chkAutoPrev.Value() == 1;
}

void MainForm::chkResize_Click() {
  state.ResizeFit = chkResize.Value() == 1;
}

void MainForm::chkPal_Click() {
  state.ShowPal = chkPal.Value() == 1;
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
