#pragma once

#include "platform/forms/combo_box.h"
#include "platform/forms/dir_tree.h"
#include "platform/forms/form.h"

namespace mill {

/// Picks a directory. `BrowseResult` holds the start directory before and the chosen one
/// afterwards; empty means Cancel. The buttons only hide the window, so an empty start keeps the
/// last place.
class BrowseForm final : public forms::Form {
 public:
  BrowseForm();

 private:
  void Form_Activate() override;
  void OKButton_Click();
  void CancelButton_Click();

  // clang-format off
  forms::DriveBox* Drive1       = add<forms::DriveBox>("Drive1",   { 120, 120, 2415,  315}, [this] { Dir1->setPath(Drive1->Drive()); });
  forms::DirTree*  Dir1         = add<forms::DirTree> ("Dir1",     { 120, 480, 2415, 2265});
  QPushButton*     OKButton     = button("OKButton",     "OK",     {2640, 120, 1065,  375}, [this] { OKButton_Click(); },     forms::Default);
  QPushButton*     CancelButton = button("CancelButton", "Cancel", {2640, 600, 1065,  375}, [this] { CancelButton_Click(); }, forms::Cancel);
  // clang-format on
};

inline forms::Global<BrowseForm> frmBrowse;

}  // namespace mill
