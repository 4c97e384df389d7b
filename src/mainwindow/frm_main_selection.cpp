#include <QEvent>

#include "dialogs/browse.h"
#include "mainwindow/frm_main.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"

namespace mill {

void MainForm::warnIfDirectoriesAreOne() {
  if (lstDest->Text() == lstSource->Text()) warn(Fault::SameDirectory);
}

void MainForm::lstSource_Change() {
  warnIfDirectoriesAreOne();
  filSource->setPath(lstSource->Text());
}

/// Other programs may have changed the folder while they were in front.
void MainForm::changeEvent(QEvent* event) {
  Form::changeEvent(event);
  const bool isActivation = event->type() == QEvent::ActivationChange && isActiveWindow();
  if (isActivation && filSource->isStale()) refreshFiles();
}

/// Reads the folder again. Only if a selected file is gone does that count as a click.
void MainForm::refreshFiles() {
  const std::vector<std::string> before = filSource->selectedNames();
  filSource->refresh();
  if (filSource->selectedNames() != before) filSource_Click();
}

void MainForm::filSource_Click() {
  recordSelection();
  if (state.SelectedCount == 1) return offerCommandsForOne();
  enableOpen(false);
  enableConvert(false);
  enableBatch(state.SelectedCount > 1);
  enableInfo(false);
}

void MainForm::recordSelection() {
  std::vector<std::string> names = filSource->selectedNames();
  state.SelectedCount = static_cast<std::int32_t>(names.size());
  // If nothing is selected, only the count changes.
  if (!names.empty()) state.SelectedFiles = std::move(names);
}

void MainForm::offerCommandsForOne() {
  if (state.PictureFileName != filSource->FileName()) {
    enableOpen(true);
    enableConvert(true);
    enableInfo(false);
    if (state.AutoPrev) cmdOpen_Click();
  } else {
    enableOpen(false);
    enableInfo(true);
    enableConvert(!state.IsStandardBitmap);
  }
  enableBatch(false);
  if (!state.ShowPrev) enableOpen(false);
}

void MainForm::filSource_DblClick() {
  if (state.SelectedCount == 1 && state.PictureFileName == filSource->FileName() &&
      !state.IsStandardBitmap) {
    cmdConvert_Click();
  }
  // After a conversion no picture is open, so the same file is opened again here.
  if (state.SelectedCount == 1 && state.PictureFileName != filSource->FileName()) cmdOpen_Click();
}

void MainForm::chooseDirectory(const char* caption, forms::ComboBox& box, std::string& directory) {
  browseForDirectory(caption, box.Text(), *this);
  if (!state.BrowseResult.empty()) useDirectory(state.BrowseResult, box, directory);
}

void MainForm::useDirectory(const std::string& path, forms::ComboBox& box, std::string& directory) {
  box.pick(path);
  directory = box.Text();
}

void MainForm::cmdSourceBrowse_Click() {
  chooseDirectory("Browse for Source Directory", *lstSource, state.SourceDir);
}

void MainForm::cmdDestBrowse_Click() {
  chooseDirectory("Browse for Destination Directory", *lstDest, state.DestDir);
}

void MainForm::cmdBrowsePal_Click() {
  chooseDirectory("Browse for Palette Directory", *lstPalette, state.PalDir);
}

void MainForm::cmdBrowseDefault_Click() {
  browseForPalette(lstDefault->Text(), *this);
  if (state.BrowseResult.empty() || state.FileResult.empty()) return;
  state.FileResult = sys::join(state.BrowseResult, state.FileResult);
  useDefaultPalette(state.FileResult);
}

void MainForm::useDefaultPalette(const std::string& path) {
  lstDefault->pick(path);
  state.DefaultPalette = path;
}

/// Dropping does what browsing does. A folder goes to the box that it is dropped on, elsewhere to
/// the source; a picture stands for its folder, and is selected there.
void MainForm::Form_Drop(const QWidget* on, const std::string& path) {
  const bool isFolder = sys::isDirectory(path);
  if (!isFolder && sys::hasExtension(path, ".pal")) return useDefaultPalette(path);
  if (!isFolder && !sys::hasExtension(path, ".bmp")) return;
  const std::string folder = isFolder ? path : std::string(sys::directoryOf(path));
  const auto isOn = [on](const QWidget* box) { return on == box || box->isAncestorOf(on); };
  if (isOn(lstDest)) return useDirectory(folder, *lstDest, state.DestDir);
  if (isOn(lstPalette)) return useDirectory(folder, *lstPalette, state.PalDir);
  useDirectory(folder, *lstSource, state.SourceDir);
  if (isFolder) return;
  if (filSource->isStale()) refreshFiles();
  filSource->select(std::string(sys::fileNameOf(path)));
  filSource_Click();
}

}  // namespace mill
