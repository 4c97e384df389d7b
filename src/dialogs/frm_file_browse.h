#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/file_controls.h"
#include "platform/forms/form.h"

namespace mill {

/// Picks an existing file. `BrowseResult` carries a path whose directory is where to start, and
/// brings back the chosen directory; `FileResult` brings back the chosen name, empty where none was
/// chosen. Both are empty after Cancel. The buttons only hide the window.
class FileBrowseForm final : public forms::Form {
 public:
  FileBrowseForm();

 private:
  void Form_Load() override { Dir1_Change(); }
  void Form_Activate() override;
  void Drive1_Change() { Dir1.setPath(Drive1.Drive()); }
  void Dir1_Change() { File1.setPath(Dir1.Path()); }
  void cmdOK_Click();
  void cmdCancel_Click();

  forms::DriveListBox Drive1{
      *this, "Drive1", {120, 120, 2295, 315}, &FileBrowseForm::Drive1_Change};
  forms::DirListBox Dir1{*this, "Dir1", {120, 480, 2295, 2295}, &FileBrowseForm::Dir1_Change};
  forms::FileListBox File1{
      *this, "File1", {2520, 120, 2295, 2655}, "*.*", forms::MultiSelect::None};
  forms::CommandButton cmdOK{
      *this, "cmdOK", "OK", {4920, 120, 945, 375}, &FileBrowseForm::cmdOK_Click, forms::Default};
  forms::CommandButton cmdCancel{
      *this,        "cmdCancel", "Cancel", {4920, 600, 945, 375}, &FileBrowseForm::cmdCancel_Click,
      forms::Cancel};
};

inline forms::Global<FileBrowseForm> frmFileBrowse;

}  // namespace mill
