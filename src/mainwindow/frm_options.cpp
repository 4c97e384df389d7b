#include "mainwindow/frm_options.h"

#include "dialogs/browse.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/forms/msg_box.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace mill {

namespace {

/// Asks the user if both directories are the same; false if the answer is Cancel.
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
            .Client = {6240, 3090},
            .Position = forms::StartUpPosition::CentreOwner,
            .ControlBox = false}) {}

void OptionsForm::Form_Load() {
  showDirectories();
  txtPalette->setText(sys::shown(state.DefaultPalette));
  cmdApply->setEnabled(false);  // filling the boxes has enabled it
}

void OptionsForm::showDirectories() {
  txtSource->setText(sys::shown(state.SourceDir));
  txtDest->setText(sys::shown(state.DestDir));
}

void OptionsForm::storeDirectories() {
  state.SourceDir = sys::bytesOf(txtSource->text());
  state.DestDir = sys::bytesOf(txtDest->text());
}

void OptionsForm::cmdOK_Click() {
  if (!mayBeUsed(sys::bytesOf(txtSource->text()), sys::bytesOf(txtDest->text())))
    return showDirectories();
  storeDirectories();
  state.DefaultPalette = sys::bytesOf(txtPalette->text());
  Unload();
}

/// The palette is stored regardless of the answer about the directories.
void OptionsForm::cmdApply_Click() {
  if (mayBeUsed(sys::bytesOf(txtSource->text()), sys::bytesOf(txtDest->text()))) storeDirectories();
  showDirectories();
  state.DefaultPalette = sys::bytesOf(txtPalette->text());
  cmdApply->setEnabled(false);
}

void OptionsForm::chooseDirectory(const char* caption, QLineEdit& box, const QLineEdit& other) {
  browseForDirectory(caption, sys::bytesOf(box.text()), *this);
  // Also asked after Cancel, whose empty result equals an empty box.
  const bool usable = mayBeUsed(state.BrowseResult, sys::bytesOf(other.text()));
  if (usable && !state.BrowseResult.empty()) box.setText(sys::shown(state.BrowseResult));
}

void OptionsForm::cmdSourceBrowse_Click() {
  chooseDirectory("Browse for Source Directory", *txtSource, *txtDest);
}

void OptionsForm::cmdDestBrowse_Click() {
  chooseDirectory("Browse for Destination Directory", *txtDest, *txtSource);
}

void OptionsForm::cmdPalBrowse_Click() {
  browseForPalette(sys::bytesOf(txtPalette->text()), *this);
  if (state.BrowseResult.empty()) return;
  txtPalette->setText(sys::shown(sys::join(state.BrowseResult, state.FileResult)));
}

}  // namespace mill
