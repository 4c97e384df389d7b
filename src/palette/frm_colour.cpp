#include "palette/frm_colour.h"

#include "conversion/show_preview.h"
#include "dialogs/frm_save.h"
#include "palette/frm_pal_extract.h"
#include "palette/show_colours.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "platform/system/number_text.h"
#include "platform/system/paths.h"

namespace mill {

namespace {

/// A number outside the range of a byte counts as the nearest one inside.
std::uint8_t byteOf(const forms::TextBox& box) {
  return static_cast<std::uint8_t>(forms::numberOf(box.Text(), 0, 255));
}

std::uint8_t inverse(std::uint8_t value) {
  return static_cast<std::uint8_t>(255 - value);
}

ColourEntry inverse(const ColourEntry& colour) {
  return {inverse(colour.Red), inverse(colour.Green), inverse(colour.Blue), colour.Extra};
}

void paint(forms::Label& patch, const ColourEntry& colour) {
  patch.setBackColor(colour.Red, colour.Green, colour.Blue);
}

}  // namespace

ColourForm::ColourForm()
    : Form({.Name = "frmColour",
            .Caption = " View/Edit Palette",
            .BorderStyle = forms::Border::FixedSingle,
            .Client = {5415, 5655},
            .Position = forms::StartUpPosition::CentreOwner,
            .ControlBox = false}) {}

void ColourForm::Form_Load() {
  WorkingPalette = state.PaletteTable;
  showColours(palette1, WorkingPalette);
  txtIndex.setText("0");
}

void ColourForm::showColour(int index) {
  txtIndex.setText(std::to_string(index));
  const ColourEntry colour = WorkingPalette[static_cast<std::size_t>(index)];
  paint(lblOrginal, colour);
  paint(lblCurrent, colour);
  txtRed.setText(std::to_string(colour.Red));
  txtGreen.setText(std::to_string(colour.Green));
  txtBlue.setText(std::to_string(colour.Blue));
}

void ColourForm::newColour() {
  paint(lblCurrent, boxColour());
}

void ColourForm::txtIndex_Change() {
  showColour(byteOf(txtIndex));
}

ColourEntry ColourForm::boxColour() const {
  return {.Red = byteOf(txtRed), .Green = byteOf(txtGreen), .Blue = byteOf(txtBlue)};
}

void ColourForm::cmdNew_Click() {
  const std::uint8_t index = byteOf(txtIndex);
  ColourEntry colour = boxColour();
  colour.Extra = WorkingPalette[index].Extra;
  WorkingPalette[index] = colour;
  showColours(palette1, WorkingPalette);
}

void ColourForm::cmdInvert_Click() {
  const ColourEntry proposal = inverse(boxColour());
  txtRed.setText(std::to_string(proposal.Red));
  txtGreen.setText(std::to_string(proposal.Green));
  txtBlue.setText(std::to_string(proposal.Blue));
}

void ColourForm::cmdInvertAll_Click() {
  for (ColourEntry& colour : WorkingPalette) colour = inverse(colour);
  showColours(palette1, WorkingPalette);
}

std::string ColourForm::pickFile(const char* caption) {
  directoryBefore_ = state.BrowseResult;
  nameBefore_ = state.FileResult;
  state.BrowseResult = state.DefaultPalette;
  state.FilePattern = "*.pal";
  frmSave->setCaption(caption);
  frmSave->Show(forms::vbModal, *this);
  // The close box unloads the dialog and leaves the names as they were; that chooses nothing.
  const bool chosen =
      frmSave.isLoaded() && !state.BrowseResult.empty() && !state.FileResult.empty();
  if (chosen) return forms::join(state.BrowseResult, state.FileResult);
  keepFile();
  return {};
}

void ColourForm::keepFile() {
  state.BrowseResult = directoryBefore_;
  state.FileResult = nameBefore_;
}

void ColourForm::cmdLoad_Click() {
  const std::string path = pickFile("Load Palette File");
  if (path.empty()) return;
  std::string head;  // dropped: a file saved here gets that of the palette in use
  if (!readPaletteFile(path, head, WorkingPalette)) return keepFile();
  hasFile_ = true;
  showColours(palette1, WorkingPalette);
}

void ColourForm::cmdSave_Click() {
  std::string path = pickFile("Save File");
  if (path.empty()) return;
  if (!path.ends_with(".pal")) path += ".pal";
  if (!writePaletteFile(path, WorkingPalette)) return keepFile();
  hasFile_ = true;
}

void ColourForm::cmdExtract_Click() {
  frmPalExtract->Show(forms::vbModal, *this);
}

void ColourForm::cmdOK_Click() {
  if (hasFile_) {
    state.CurrentPaletteFile = forms::join(state.BrowseResult, state.FileResult);
    LoadPalette();
    if (!state.PictureFileName.empty() && state.ShowPrev) renewPreview();
  }
  Unload();
}

}  // namespace mill
