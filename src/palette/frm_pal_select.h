#pragma once

#include <string>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/list_box.h"

namespace mill {

/// Settles which of several palette files is taken. It ends with OK or Default only, and leaves the
/// choice in `CurrentPaletteFile`; a file can be tried on the open picture before.
class PalSelectForm final : public forms::Form {
 public:
  PalSelectForm();

  void addPalette(const std::string& path) { lstPalette.AddItem(path); }

 private:
  void lstPalette_Click();
  void cmdPrev_Click();
  void cmdDefault_Click();
  void cmdOK_Click();

  forms::Label Label1{*this,
                      "Label1",
                      "There is more than one palette with the same index.",
                      {120, 120, 7095, 195}};
  forms::Label Label2{*this, "Label2", "Choose one from the list below:", {120, 360, 7095, 195}};
  forms::ListBox lstPalette{
      *this, "lstPalette", {120, 600, 7095, 1455}, &PalSelectForm::lstPalette_Click};
  forms::CommandButton cmdPrev{
      *this,          "cmdPrev", "Preview", {120, 2160, 1335, 375}, &PalSelectForm::cmdPrev_Click,
      forms::Disabled};
  forms::CommandButton cmdDefault{
      *this, "cmdDefault", "Default", {3000, 2160, 1335, 375}, &PalSelectForm::cmdDefault_Click};
  forms::CommandButton cmdOK{
      *this, "cmdOK", "OK", {5880, 2160, 1335, 375}, &PalSelectForm::cmdOK_Click, forms::Disabled};
};

inline forms::Global<PalSelectForm> frmPalSelect;

/// Shows the chooser with these paths and returns when the user has decided.
void selectPalette(const std::vector<std::string>& paths);

}  // namespace mill
