#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/file_controls.h"
#include "platform/forms/form.h"

namespace mill {

/// Picks a file or takes a new name, for loading and saving alike. `BrowseResult` carries a path
/// whose directory is where to start, and brings back the chosen directory; `FileResult` brings
/// back the name as it was typed. Both are empty after Cancel. The buttons only hide the window,
/// and the name stays for the next use.
class SaveForm final : public forms::Form {
 public:
  SaveForm();

 private:
  void Form_Load() override { Dir1_Change(); }
  void Form_Activate() override;
  void Drive1_Change() { Dir1.setPath(Drive1.Drive()); }
  void Dir1_Change() { File1.setPath(Dir1.Path()); }
  void File1_Click() { txtFilename.setText(File1.FileName()); }
  void cmdOK_Click();
  void cmdCancel_Click();

  forms::DriveListBox Drive1{*this, "Drive1", {120, 120, 2295, 315}, &SaveForm::Drive1_Change};
  forms::DirListBox Dir1{*this, "Dir1", {120, 480, 2295, 2295}, &SaveForm::Dir1_Change};
  forms::FileListBox File1{*this,
                           "File1",
                           {2520, 120, 2295, 2655},
                           "*.*",
                           forms::MultiSelect::None,
                           &SaveForm::File1_Click};
  forms::Label Label1{*this, "Label1", "Filename:", {120, 3045, 855, 195}};
  forms::TextBox txtFilename{*this, "txtFilename", {1080, 3000, 3735, 315}};
  forms::CommandButton cmdOK{
      *this, "cmdOK", "OK", {4920, 120, 945, 375}, &SaveForm::cmdOK_Click, forms::Default};
  forms::CommandButton cmdCancel{
      *this,        "cmdCancel", "Cancel", {4920, 600, 945, 375}, &SaveForm::cmdCancel_Click,
      forms::Cancel};
};

inline forms::Global<SaveForm> frmSave;

}  // namespace mill
