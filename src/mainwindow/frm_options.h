#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace mill {

/// Edits three defaults: the two directories that the program starts with, and the palette for
/// pictures that have none. The main window's boxes follow at the next start.
class OptionsForm final : public forms::Form {
 public:
  OptionsForm();

 private:
  void Form_Load() override;
  void textChanged() { cmdApply.setEnabled(true); }
  void cmdSourceBrowse_Click();
  void cmdDestBrowse_Click();
  void cmdPalBrowse_Click();
  void cmdOK_Click();
  void cmdCancel_Click() { Unload(); }
  void cmdApply_Click();

  void showDirectories();
  void storeDirectories();
  void chooseDirectory(const char* caption, forms::TextBox& box, const forms::TextBox& other);

  forms::Label lblSource{*this, "lblSource", "Default Soruce directory:", {120, 120, 4980, 195}};
  forms::TextBox txtSource{*this, "txtSource", {120, 360, 4980, 315}, &OptionsForm::textChanged};
  forms::CommandButton cmdSourceBrowse{*this,
                                       "cmdSourceBrowse",
                                       "Browse",
                                       {5220, 360, 900, 315},
                                       &OptionsForm::cmdSourceBrowse_Click};
  forms::Label lblDest{*this, "lblDest", "Default Destination Directory:", {120, 870, 4980, 195}};
  forms::TextBox txtDest{*this, "txtDest", {120, 1110, 4980, 315}, &OptionsForm::textChanged};
  forms::CommandButton cmdDestBrowse{
      *this, "cmdDestBrowse", "Browse", {5220, 1110, 900, 315}, &OptionsForm::cmdDestBrowse_Click};
  forms::Label lblPalette{*this, "lblPalette", "Default Palette:", {120, 1620, 4980, 195}};
  forms::TextBox txtPalette{*this, "txtPalette", {120, 1860, 4980, 315}, &OptionsForm::textChanged};
  forms::CommandButton cmdPalBrowse{
      *this, "cmdPalBrowse", "Browse", {5220, 1860, 900, 315}, &OptionsForm::cmdPalBrowse_Click};
  forms::CommandButton cmdOK{
      *this, "cmdOK", "OK", {2595, 2595, 1095, 375}, &OptionsForm::cmdOK_Click, forms::Default};
  forms::CommandButton cmdCancel{
      *this,        "cmdCancel", "Cancel", {3810, 2595, 1095, 375}, &OptionsForm::cmdCancel_Click,
      forms::Cancel};
  forms::CommandButton cmdApply{
      *this,          "cmdApply", "Apply", {5025, 2595, 1095, 375}, &OptionsForm::cmdApply_Click,
      forms::Disabled};
};

inline forms::Global<OptionsForm> frmOptions;

}  // namespace mill
