#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "formats/palette_list.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/form.h"
#include "platform/forms/swatches.h"

namespace mill {

/// Shows the palettes of a list file one at a time and saves the current one as a palette file
/// named after its index, so that the palette search finds it.
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
  void cmdPrev_Click();
  void cmdNext_Click();
  void cmdSave_Click();

  const ListPalette& onShow() const { return ListPalettes[static_cast<std::size_t>(ListPosition)]; }
  std::string outputDirectory() const;
  bool savePalette() const;

  std::string ListFile;    ///< full path of the list file picked last
  std::string ExtractDir;  ///< the text of `lstDest` as of its last change
  bool AddListName = false;
  std::vector<ListPalette> ListPalettes;
  std::int16_t ListPosition = 0;
  bool ListLoaded = false;

  // clang-format off
  QLabel*          lblSource       = label   ("lblSource", "Source File:",                                   { 120,  150, 1500, 195});
  QPushButton*     cmdSourceBrowse = button  ("cmdSourceBrowse", "Browse", "Browse for Source File",         {2640,  105,  855, 255}, [this] { cmdSourceBrowse_Click(); });
  forms::ComboBox* lstSource       = comboBox("lstSource",                                                   { 120,  420, 3375, 315}, lblSource, [this] { lstSource_Change(); }, [this] { lstSource_Click(); });
  QLabel*          lblDest         = label   ("lblDest", "Destination Directory:",                           { 120,  870, 1800, 195});
  QPushButton*     cmdDestBrowse   = button  ("cmdDestBrowse", "Browse", "Browse for Destination Directory", {2640,  825,  855, 255}, [this] { cmdDestBrowse_Click(); });
  forms::ComboBox* lstDest         = comboBox("lstDest",                                                     { 120, 1140, 3375, 315}, lblDest, [this] { lstDest_Change(); });

  QPushButton*     cmdLoad         = button  ("cmdLoad", "Load",                  {3720,  105, 1095, 330}, [this] { cmdLoad_Click(); }, forms::Disabled);
  QPushButton*     cmdPrev         = button  ("cmdPrev", "<", "Previous palette", {3720,  510,  510, 330}, [this] { cmdPrev_Click(); }, forms::Disabled);
  QPushButton*     cmdNext         = button  ("cmdNext", ">", "Next palette",     {4305,  510,  510, 330}, [this] { cmdNext_Click(); }, forms::Disabled);
  QPushButton*     cmdSave         = button  ("cmdSave", "Save",                  {3720,  915, 1095, 330}, [this] { cmdSave_Click(); }, forms::Disabled);
  QPushButton*     cmdDone         = button  ("cmdDone", "Done",                  {3720, 1320, 1095, 330}, [this] { Unload(); });

  QLabel*          Label1          = label   ("Label1", "Number of palettes:",    { 120, 1785, 1590,  195});
  QLineEdit*       txtNumber       = lineEdit("txtNumber",                        {1740, 1740, 1110,  285}, Label1, {}, forms::ReadOnly);
  QLabel*          Label2          = label   ("Label2", "Current palette index:", { 120, 2160, 1590,  195});
  QLineEdit*       txtIndex        = lineEdit("txtIndex",                         {1740, 2115, 1110,  285}, Label2, {}, forms::ReadOnly);
  QCheckBox*       chkAdd          = checkBox("chkAdd", "Add KSL Name",           {2880, 2130, 1935,  255}, [this] { AddListName = chkAdd->isChecked(); });
  forms::Swatches* palette1        = add<forms::Swatches>("palette1",             { 120, 2520, 3855, 3855});
  // clang-format on
};

inline forms::Global<PalExtractForm> frmPalExtract;

}  // namespace mill
