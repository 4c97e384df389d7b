#include "mainwindow/frm_options.h"

#include "dialogs/browse.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/forms/msg_box.h"
#include "platform/system/paths.h"

namespace mill {

namespace {

/// Asks where both directories are one; false when the user doesn't mean that.
bool mayBeUsed(const std::string& source, const std::string& dest) {
  if (dest != source) return true;
  return forms::MsgBox({.text = std::string(message(Fault::SameDirectory)) +
                                "\r\nAre you sure you want to continue?",
                        .title = kWarning,
                        .buttons = forms::Buttons::OKCancel,
                        .icon = forms::Icon::Information}) == forms::Answer::OK;
}

}  // namespace

OptionsForm::OptionsForm()
    : Form({.Name = "frmOptions",
            .Caption = "Options",
            .BorderStyle = forms::Border::FixedSingle,
            .Client = {6240, 3090},
            .Position = forms::StartUpPosition::CentreOwner,
            .ControlBox = false}) {}

void OptionsForm::Form_Load() {
  showDirectories();
  txtPalette.setText(state.DefaultPalette);
  cmdApply.setEnabled(false);  // which filling the boxes has enabled
}

void OptionsForm::showDirectories() {
  txtSource.setText(state.SourceDir);
  txtDest.setText(state.DestDir);
}

void OptionsForm::storeDirectories() {
  state.SourceDir = txtSource.Text();
  state.DestDir = txtDest.Text();
}

void OptionsForm::cmdOK_Click() {
  if (!mayBeUsed(txtSource.Text(), txtDest.Text())) return showDirectories();
  storeDirectories();
  state.DefaultPalette = txtPalette.Text();
  Unload();
}

/// The palette is stored whatever becomes of the directories.
void OptionsForm::cmdApply_Click() {
  if (mayBeUsed(txtSource.Text(), txtDest.Text())) storeDirectories();
  showDirectories();
  state.DefaultPalette = txtPalette.Text();
  cmdApply.setEnabled(false);
}

void OptionsForm::chooseDirectory(const char* caption, forms::TextBox& box,
                                  const forms::TextBox& other) {
  browseForDirectory(caption, box.Text(), *this);
  // Asked after a Cancel too, which equals an empty box.
  const bool usable = mayBeUsed(state.BrowseResult, other.Text());
  if (usable && !state.BrowseResult.empty()) box.setText(state.BrowseResult);
}

void OptionsForm::cmdSourceBrowse_Click() {
  chooseDirectory("Browse for Source Directory", txtSource, txtDest);
}

void OptionsForm::cmdDestBrowse_Click() {
  chooseDirectory("Browse for Destination Directory", txtDest, txtSource);
}

void OptionsForm::cmdPalBrowse_Click() {
  browseForPalette(txtPalette.Text(), *this);
  if (state.BrowseResult.empty()) return;
  txtPalette.setText(forms::join(state.BrowseResult, state.FileResult));
}

}  // namespace mill
