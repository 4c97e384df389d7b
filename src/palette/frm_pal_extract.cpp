#include "palette/frm_pal_extract.h"

#include <QFileDialog>

#include <algorithm>
#include <array>

#include "dialogs/browse.h"
#include "formats/fault.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/forms/msg_box.h"
#include "platform/system/file_io.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace mill {

namespace {

Fault readList(const std::string& path, std::vector<ListPalette>& palettes) {
  sys::InputFile file(path);
  if (!file.isOpen() && !sys::isNormalFile(path)) return Fault::PaletteListMissing;
  std::array<std::uint8_t, kListHeadSize> head{};
  if (!file.isOpen() || !file.read(head)) return Fault::NotAPaletteList;
  int count = 0;
  const Fault fault = checkPaletteList(head, file.size(), count);
  if (fault != Fault::None) return fault;
  const ReadBytes rest = [&](std::span<std::uint8_t> bytes) { return file.read(bytes); };
  return readPaletteList(count, rest, palettes);
}

/// The file name without its last four characters, whatever they are.
std::string baseName(const std::string& listFile) {
  const std::string withoutEnd =
      listFile.substr(0, listFile.size() - std::min<std::size_t>(4, listFile.size()));
  return std::string(sys::fileNameOf(withoutEnd));
}

}  // namespace

PalExtractForm::PalExtractForm()
    : Form({.Name = "frmPalExtract",
            .Caption = "Palette Extractor",
            .Client = {4935, 6495},
            .Position = forms::StartUpPosition::CentreOwner}) {}

void PalExtractForm::showPalette() {
  palette1->setColours(onShow().Entries);
  txtIndex->setText(QString::number(onShow().Index));
}

void PalExtractForm::cmdSourceBrowse_Click() {
  QFileDialog dialog(this, QStringLiteral("Find KSL files"),
                     sys::shown(sys::nativePath(state.PalDir)),
                     QStringLiteral("KSL files (*.ksl)"));
  dialog.setObjectName(QStringLiteral("CDlg1"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (dialog.exec() != QDialog::Accepted) return;
  ListFile = sys::drivePath(sys::bytesOf(dialog.selectedFiles().value(0)));
  lstSource->AddItem(ListFile);
  lstSource->setText(ListFile);
}

void PalExtractForm::lstSource_Change() {
  cmdLoad->setEnabled(true);
  ListLoaded = false;
  cmdPrev->setEnabled(false);
  cmdNext->setEnabled(false);
  cmdSave->setEnabled(false);
}

void PalExtractForm::lstSource_Click() {
  ListFile = lstSource->Text();
  lstSource_Change();
}

void PalExtractForm::cmdLoad_Click() {
  if (const Fault fault = readList(ListFile, ListPalettes); fault != Fault::None) {
    return warn(fault);
  }
  const auto count = static_cast<int>(ListPalettes.size());
  txtNumber->setText(QString::number(count));
  ListPosition = static_cast<std::int16_t>(std::min<int>(ListPosition, count - 1));
  showPalette();
  cmdPrev->setEnabled(true);
  cmdNext->setEnabled(true);
  if (!lstDest->Text().empty()) cmdSave->setEnabled(true);
  ListLoaded = true;
  cmdLoad->setEnabled(false);
}

void PalExtractForm::cmdDestBrowse_Click() {
  browseForDirectory("Browse for Destination Directory", lstDest->Text(), *this);
  if (!state.BrowseResult.empty()) lstDest->pick(state.BrowseResult);
}

void PalExtractForm::lstDest_Change() {
  if (!lstDest->Text().empty() && ListLoaded) cmdSave->setEnabled(true);
  ExtractDir = lstDest->Text();
}

void PalExtractForm::cmdPrev_Click() {
  if (ListPosition <= 0) return;
  --ListPosition;
  showPalette();
}

void PalExtractForm::cmdNext_Click() {
  if (ListPosition + 1 >= std::ssize(ListPalettes)) return;
  ++ListPosition;
  showPalette();
}

std::string PalExtractForm::outputDirectory() const {
  return AddListName ? sys::join(ExtractDir, baseName(ListFile)) : ExtractDir;
}

/// False, after a message, if the current palette couldn't be written.
bool PalExtractForm::savePalette() const {
  const std::string directory = outputDirectory();
  const std::string path = sys::join(directory, std::to_string(onShow().Index) + ".pal");
  if (AddListName && !sys::exists(directory) && !sys::makeDirectory(directory)) {
    warn(Fault::PaletteUnwritable, path);
    return false;
  }
  return writePaletteFile(path, onShow().Entries);
}

void PalExtractForm::cmdSave_Click() {
  // Restore the focus, so that the next Enter doesn't press "Done".
  const bool hadFocus = cmdSave->hasFocus();
  cmdSave->setEnabled(false);
  if (savePalette()) forms::MsgBox({.text = "Palette file saved!"});
  cmdSave->setEnabled(true);
  if (hadFocus) cmdSave->setFocus();
}

}  // namespace mill
