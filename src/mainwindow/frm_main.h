#pragma once

#include <string>

#include "platform/forms/combo_box.h"
#include "platform/forms/controls.h"
#include "platform/forms/file_controls.h"
#include "platform/forms/form.h"
#include "platform/forms/menu.h"

namespace mill {

/// The main window, and with it the program: everything before the user's first action happens in
/// its `Form_Load`, and the process ends when it is unloaded.
///
/// Three files hold its handlers: start-up and shut-down in frm_main.cpp, the directory boxes and
/// the file list in frm_main_selection.cpp, commands and check boxes in frm_main_commands.cpp.
class MainForm final : public forms::Form {
 public:
  MainForm();

 private:
  // Start-up and shut-down.
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Activate() override { mnuOptions.setEnabled(started_); }
  void Form_Resize() override;
  void fillBoxes();
  void loadDefaultPalette();
  void setCheckBoxes();

  // Folders and files.
  void lstSource_Change();
  void lstDest_Change() { warnIfDirectoriesAreOne(); }
  void filSource_Click();
  void filSource_DblClick();
  void cmdSourceBrowse_Click();
  void cmdDestBrowse_Click();
  void cmdBrowsePal_Click();
  void cmdBrowseDefault_Click();
  void warnIfDirectoriesAreOne();
  void recordSelection();
  void offerCommandsForOne();
  void chooseDirectory(const char* caption, forms::ComboBox& box, std::string& directory);

  // Commands and check boxes.
  void cmdOpen_Click();
  void cmdConvert_Click();
  void cmdPalette_Click();
  void cmdBatch_Click();
  void cmdInfo_Click();
  void mnuOptions_Click();
  void mnuAbout_Click();
  void cmdExit_Click() { Unload(); }
  void chkPrev_Click();
  void showToolWindow(forms::Form& window, bool shown);
  void chkAutoPrev_Click();
  void chkResize_Click();
  void chkPal_Click();
  void chkAutoPal_Click();
  void chkSearch_Click();
  void enableOpen(bool enabled);
  void enableConvert(bool enabled);
  void enableBatch(bool enabled);
  void enableInfo(bool enabled);

  forms::Menu mnuFile{*this, "mnuFile", "&File"};
  forms::MenuItem mnuOpen{mnuFile,        "mnuOpen", "&Preview", "Ctrl+O", &MainForm::cmdOpen_Click,
                          forms::Disabled};
  forms::MenuItem mnuConvert{
      mnuFile, "mnuConvert", "&Convert...", "Ctrl+C", &MainForm::cmdConvert_Click, forms::Disabled};
  forms::MenuItem mnuBatch{
      mnuFile,        "mnuBatch", "&Batch Convert...", "Ctrl+B", &MainForm::cmdBatch_Click,
      forms::Disabled};
  forms::MenuItem mnuFileSeperator{mnuFile, "mnuFileSeperator", "-"};
  forms::MenuItem mnuExit{mnuFile, "mnuExit", "&Exit", "", &MainForm::cmdExit_Click};
  forms::Menu mnuEdit{*this, "mnuEdit", "&Edit"};
  forms::MenuItem mnuPalette{mnuEdit, "mnuPalette", "Change &Palette...", "Ctrl+P",
                             &MainForm::cmdPalette_Click};
  forms::MenuItem mnuInfo{
      mnuEdit,        "mnuInfo", "View &File Info...", "Ctrl+F", &MainForm::cmdInfo_Click,
      forms::Disabled};
  forms::MenuItem mnuOptions{
      mnuEdit, "mnuOptions", "&Options...", "Ctrl+T", &MainForm::mnuOptions_Click, forms::Disabled};
  forms::Menu mnuHelp{*this, "mnuHelp", "&Help"};
  forms::MenuItem mnuAbout{mnuHelp, "mnuAbout", "&About...", "", &MainForm::mnuAbout_Click};

  forms::Label lblSource{
      *this, "lblSource", "Source Directory:", {120, 30, 1230, 195}, forms::LabelStyle::AutoSize};
  forms::ComboBox lstSource{*this,
                            "lstSource",
                            {120, 360, 3855, 315},
                            &MainForm::lstSource_Change,
                            &MainForm::lstSource_Change};
  forms::CommandButton cmdSourceBrowse{
      *this, "cmdSourceBrowse", "Browse", {3120, 0, 855, 255}, &MainForm::cmdSourceBrowse_Click};
  forms::Label lblDest{*this,
                       "lblDest",
                       "Conversion Target Directory:",
                       {4200, 30, 2025, 195},
                       forms::LabelStyle::AutoSize};
  forms::ComboBox lstDest{*this,
                          "lstDest",
                          {4200, 360, 4215, 315},
                          &MainForm::lstDest_Change,
                          &MainForm::lstDest_Change};
  forms::CommandButton cmdDestBrowse{
      *this, "cmdDestBrowse", "Browse", {7560, 0, 855, 255}, &MainForm::cmdDestBrowse_Click};
  forms::FileListBox filSource{*this,
                               "filSource",
                               {120, 720, 3375, 3405},
                               "*.bmp",
                               forms::MultiSelect::Extended,
                               &MainForm::filSource_Click,
                               &MainForm::filSource_DblClick};

  forms::Frame Frame1{*this, "Frame1", "", {3600, 720, 4815, 3375}};
  forms::CheckBox chkPrev{
      Frame1, "chkPrev", "Show Preview window", {120, 240, 2175, 255}, &MainForm::chkPrev_Click};
  forms::CheckBox chkAutoPrev{Frame1,
                              "chkAutoPrev",
                              "Auto Preview",
                              {480, 480, 1815, 255},
                              &MainForm::chkAutoPrev_Click,
                              forms::Disabled};
  forms::CheckBox chkResize{Frame1,
                            "chkResize",
                            "Resize Window to Fit",
                            {480, 720, 1815, 255},
                            &MainForm::chkResize_Click,
                            forms::Disabled};
  forms::CheckBox chkPal{
      Frame1, "chkPal", "Show Palette window", {2400, 240, 2055, 255}, &MainForm::chkPal_Click};
  forms::CheckBox chkAutoPal{Frame1,
                             "chkAutoPal",
                             "Auto Palette Selection",
                             {2400, 480, 2055, 255},
                             &MainForm::chkAutoPal_Click};
  forms::CheckBox chkSearch{Frame1,
                            "chkSearch",
                            "Search Sub-folders",
                            {2760, 720, 1695, 255},
                            &MainForm::chkSearch_Click,
                            forms::Disabled};
  forms::Label Label2{
      Frame1, "Label2", "Palette Directory:", {120, 1110, 1215, 195}, forms::LabelStyle::AutoSize};
  forms::CommandButton cmdBrowsePal{
      Frame1, "cmdBrowsePal", "Browse", {3600, 1080, 855, 255}, &MainForm::cmdBrowsePal_Click};
  forms::ComboBox lstPalette{Frame1, "lstPalette", {120, 1440, 4335, 315}};
  forms::Label Label3{
      Frame1, "Label3", "Default Palette:", {120, 1830, 1095, 195}, forms::LabelStyle::AutoSize};
  forms::CommandButton cmdBrowseDefault{Frame1,
                                        "cmdBrowseDefault",
                                        "Browse",
                                        {3600, 1800, 855, 255},
                                        &MainForm::cmdBrowseDefault_Click};
  forms::ComboBox lstDefault{Frame1, "lstDefault", {120, 2160, 4335, 315}};
  forms::Label Label1{Frame1, "Label1", "Current Palette:", {120, 2520, 1335, 255}};
  forms::Label lblPalFile{
      Frame1, "lblPalFile", "", {120, 2760, 4575, 495}, forms::LabelStyle::Bordered};

  forms::CommandButton cmdOpen{
      *this,          "cmdOpen", "Sh&ow Preview", {120, 4200, 1335, 495}, &MainForm::cmdOpen_Click,
      forms::Disabled};
  forms::CommandButton cmdConvert{*this,
                                  "cmdConvert",
                                  "&Convert Picture",
                                  {1560, 4200, 1335, 495},
                                  &MainForm::cmdConvert_Click,
                                  forms::Disabled};
  forms::CommandButton cmdBatch{*this,
                                "cmdBatch",
                                "&Batch Conversion",
                                {3000, 4200, 1455, 495},
                                &MainForm::cmdBatch_Click,
                                forms::Disabled};
  forms::CommandButton cmdPalette{
      *this, "cmdPalette", "Change &Palette", {4560, 4200, 1335, 495}, &MainForm::cmdPalette_Click};
  forms::CommandButton cmdInfo{*this,
                               "cmdInfo",
                               "View &File Info",
                               {6000, 4200, 1095, 495},
                               &MainForm::cmdInfo_Click,
                               forms::Disabled};
  forms::CommandButton cmdExit{
      *this, "cmdExit", "Exit", {7320, 4200, 1095, 495}, &MainForm::cmdExit_Click};

  bool started_ = false;
};

inline forms::Global<MainForm> frmMain;

}  // namespace mill
