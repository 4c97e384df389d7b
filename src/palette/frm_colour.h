#pragma once

#include <string>

#include "formats/picture_record.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/swatch_grid.h"
#include "platform/forms/up_down.h"

namespace mill {

/// The palette editor. Everything happens on a copy: an edit leaves the window only as a file, and
/// OK makes the file that was loaded or saved here last the current palette.
class ColourForm final : public forms::Form {
 public:
  ColourForm();

  /// Makes entry `index` the one on show.
  void showColour(int index);
  /// Shows the colour of the three boxes beside the entry's own.
  void newColour();

 private:
  void Form_Load() override;
  void txtIndex_Change();
  void cmdOK_Click();
  void cmdCancel_Click() { Unload(); }
  void cmdExtract_Click();
  void cmdLoad_Click();
  void cmdSave_Click();
  void cmdInvertAll_Click();
  void cmdInvert_Click();
  void cmdNew_Click();

  ColourEntry boxColour() const;
  /// Lets the user pick a file; its full path, empty on Cancel.
  std::string pickFile(const char* caption);
  /// Puts back the names of the file that counted before `pickFile`.
  void keepFile();

  ColourTable WorkingPalette{};
  /// Whether `BrowseResult` and `FileResult` name a file that was loaded or saved here.
  bool hasFile_ = false;
  std::string directoryBefore_;  ///< `BrowseResult` and `FileResult` before `pickFile`
  std::string nameBefore_;

  forms::SwatchGrid palette1{*this, "palette1", 120, 120, 240, &ColourForm::showColour};

  forms::CommandButton cmdOK{
      *this, "cmdOK", "OK", {4035, 120, 1320, 375}, &ColourForm::cmdOK_Click, forms::Default};
  forms::CommandButton cmdCancel{
      *this,        "cmdCancel", "Cancel", {4035, 600, 1320, 375}, &ColourForm::cmdCancel_Click,
      forms::Cancel};
  forms::CommandButton cmdExtract{*this,
                                  "cmdExtract",
                                  "Extract Palette",
                                  {4035, 1080, 1320, 375},
                                  &ColourForm::cmdExtract_Click};
  forms::CommandButton cmdLoad{
      *this, "cmdLoad", "Load Palette", {4035, 1560, 1320, 375}, &ColourForm::cmdLoad_Click};
  forms::CommandButton cmdSave{
      *this, "cmdSave", "Save Palette", {4035, 2040, 1320, 375}, &ColourForm::cmdSave_Click};
  forms::CommandButton cmdInvertAll{*this,
                                    "cmdInvertAll",
                                    "Invert All Colours",
                                    {4035, 2520, 1320, 375},
                                    &ColourForm::cmdInvertAll_Click};
  forms::CommandButton cmdInvert{
      *this, "cmdInvert", "Invert Colour", {4035, 3000, 1320, 375}, &ColourForm::cmdInvert_Click};
  forms::CommandButton cmdNew{
      *this, "cmdNew", "Set New Colour", {4035, 3480, 1320, 375}, &ColourForm::cmdNew_Click};

  forms::Label lblRed{*this, "lblRed", "Red:", {120, 4125, 555, 195}};
  forms::TextBox txtRed{*this, "txtRed", {720, 4080, 615, 285}, &ColourForm::newColour};
  forms::UpDown updRed{*this, "updRed", {1335, 4080, 240, 285}, txtRed, 0, 255};
  forms::Label lblGreen{*this, "lblGreen", "Green:", {120, 4500, 555, 195}};
  forms::TextBox txtGreen{*this, "txtGreen", {720, 4455, 615, 285}, &ColourForm::newColour};
  forms::UpDown updGreen{*this, "updGreen", {1335, 4455, 240, 285}, txtGreen, 0, 255};
  forms::Label lblBlue{*this, "lblBlue", "Blue:", {120, 4875, 555, 195}};
  forms::TextBox txtBlue{*this, "txtBlue", {720, 4830, 615, 285}, &ColourForm::newColour};
  forms::UpDown updBlue{*this, "updBlue", {1335, 4830, 240, 285}, txtBlue, 0, 255};
  forms::Label lblIndex{*this, "lblIndex", "Index:", {120, 5250, 555, 195}};
  forms::TextBox txtIndex{*this, "txtIndex", {720, 5205, 615, 285}, &ColourForm::txtIndex_Change};
  forms::UpDown updIndex{*this, "updIndex", {1335, 5205, 240, 285}, txtIndex, 0, 255};

  forms::Frame Frame1{*this, "Frame1", "Current", {1800, 4080, 1215, 1410}};
  forms::Label lblCurrent{Frame1, "lblCurrent", "", {120, 315, 975, 975}, forms::LabelStyle::Patch};
  forms::Frame Frame2{*this, "Frame2", "Orginal", {3120, 4080, 1215, 1410}};
  forms::Label lblOrginal{Frame2, "lblOrginal", "", {120, 315, 975, 975}, forms::LabelStyle::Patch};
};

inline forms::Global<ColourForm> frmColour;

}  // namespace mill
