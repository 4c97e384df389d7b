#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "formats/palette_list.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/common_dialog.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/swatch_grid.h"

namespace mill {

/// Shows the palettes of a list file one at a time and writes the one on show as a palette file
/// named after its index, under which the palette search finds it.
class PalExtractForm final : public forms::Form {
 public:
  PalExtractForm();

  /// Shows the record at `ListPosition`.
  void showPalette();

 private:
  void cmdSourceBrowse_Click();
  void lstSource_Change();
  void lstSource_Click();
  void cmdLoad_Click();
  void cmdDestBrowse_Click();
  void lstDest_Change();
  void chkAdd_Click() { AddListName = chkAdd.Value() == 1; }
  void cmdPrev_Click();
  void cmdNext_Click();
  void cmdSave_Click();
  void cmdDone_Click() { Unload(); }

  const ListPalette& onShow() const { return ListPalettes[static_cast<std::size_t>(ListPosition)]; }
  std::string outputDirectory() const;
  bool savePalette() const;

  std::string ListFile;    ///< full path of the list file picked last
  std::string ExtractDir;  ///< the text of `lstDest` as of its last change
  bool AddListName = false;
  std::vector<ListPalette> ListPalettes;
  std::int16_t ListPosition = 0;
  bool ListLoaded = false;

  forms::CommonDialog CDlg1{*this, "CDlg1", "Find KSL files", "KSL files (*.ksl)|*.ksl"};

  forms::Label lblSource{*this, "lblSource", "Source File:", {120, 150, 1500, 195}};
  forms::CommandButton cmdSourceBrowse{*this,
                                       "cmdSourceBrowse",
                                       "Browse",
                                       {2640, 105, 855, 255},
                                       &PalExtractForm::cmdSourceBrowse_Click};
  forms::ComboBox lstSource{*this,
                            "lstSource",
                            {120, 420, 3375, 315},
                            &PalExtractForm::lstSource_Change,
                            &PalExtractForm::lstSource_Click};
  forms::Label lblDest{*this, "lblDest", "Destination Directory:", {120, 870, 1800, 195}};
  forms::CommandButton cmdDestBrowse{*this,
                                     "cmdDestBrowse",
                                     "Browse",
                                     {2640, 825, 855, 255},
                                     &PalExtractForm::cmdDestBrowse_Click};
  forms::ComboBox lstDest{*this,
                          "lstDest",
                          {120, 1140, 3375, 315},
                          &PalExtractForm::lstDest_Change,
                          &PalExtractForm::lstDest_Change};

  forms::CommandButton cmdLoad{
      *this,          "cmdLoad", "Load", {3720, 105, 1095, 330}, &PalExtractForm::cmdLoad_Click,
      forms::Disabled};
  forms::CommandButton cmdPrev{
      *this,          "cmdPrev", "<", {3720, 510, 510, 330}, &PalExtractForm::cmdPrev_Click,
      forms::Disabled};
  forms::CommandButton cmdNext{
      *this,          "cmdNext", ">", {4305, 510, 510, 330}, &PalExtractForm::cmdNext_Click,
      forms::Disabled};
  forms::CommandButton cmdSave{
      *this,          "cmdSave", "Save", {3720, 915, 1095, 330}, &PalExtractForm::cmdSave_Click,
      forms::Disabled};
  forms::CommandButton cmdDone{
      *this, "cmdDone", "Done", {3720, 1320, 1095, 330}, &PalExtractForm::cmdDone_Click};

  forms::Label Label1{*this, "Label1", "Number of palettes:", {120, 1785, 1590, 195}};
  forms::TextBox txtNumber{*this, "txtNumber", {1740, 1740, 1110, 285}, {}, forms::ReadOnly};
  forms::Label Label2{*this, "Label2", "Current palette index:", {120, 2160, 1590, 195}};
  forms::TextBox txtIndex{*this, "txtIndex", {1740, 2115, 1110, 285}, {}, forms::ReadOnly};
  forms::CheckBox chkAdd{
      *this, "chkAdd", "Add KSL Name", {2880, 2130, 1935, 255}, &PalExtractForm::chkAdd_Click};

  forms::SwatchGrid palette1{*this, "palette1", 120, 2520, 240};
};

inline forms::Global<PalExtractForm> frmPalExtract;

}  // namespace mill
