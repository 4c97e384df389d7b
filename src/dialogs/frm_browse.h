#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/file_controls.h"
#include "platform/forms/form.h"

namespace mill {

/// Picks a directory. `BrowseResult` carries the directory to start in and brings back the chosen
/// one; empty means Cancel. The buttons only hide the window, so an empty start keeps the last
/// place.
class BrowseForm final : public forms::Form {
 public:
  BrowseForm();

 private:
  void Form_Activate() override;
  void Drive1_Change() { Dir1.setPath(Drive1.Drive()); }
  void OKButton_Click();
  void CancelButton_Click();

  forms::DriveListBox Drive1{*this, "Drive1", {120, 120, 2415, 315}, &BrowseForm::Drive1_Change};
  forms::DirListBox Dir1{*this, "Dir1", {120, 480, 2415, 2265}};
  forms::CommandButton OKButton{
      *this, "OKButton", "OK", {2640, 120, 1065, 375}, &BrowseForm::OKButton_Click, forms::Default};
  forms::CommandButton CancelButton{*this,
                                    "CancelButton",
                                    "Cancel",
                                    {2640, 600, 1065, 375},
                                    &BrowseForm::CancelButton_Click,
                                    forms::Cancel};
};

inline forms::Global<BrowseForm> frmBrowse;

}  // namespace mill
