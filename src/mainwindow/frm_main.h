#pragma once

#include <string>

#include "picture/program_state.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/elided_label.h"
#include "platform/forms/file_list.h"
#include "platform/forms/form.h"

namespace mill {

/// The main window. Its `Form_Load` is the start-up of the program, and unloading it ends the
/// process.
///
/// The handlers are in three files: start-up and shut-down in frm_main.cpp, directory boxes and
/// file list in frm_main_selection.cpp, commands and check boxes in frm_main_commands.cpp.
class MainForm final : public forms::Form {
 public:
  MainForm();

 private:
  // Start-up and shut-down.
  void Form_Load() override;
  void Form_Unload() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void Form_Activate() override { mnuOptions->setEnabled(started_); }
  void Form_Resize() override;
  void fillBoxes();
  void loadDefaultPalette();
  void setCheckBoxes();

  // Folders and files.
  void changeEvent(QEvent* event) override;
  void Form_Drop(const QWidget* on, const std::string& path) override;
  void refreshFiles();
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
  static void useDirectory(const std::string& path, forms::ComboBox& box, std::string& directory);
  void useDefaultPalette(const std::string& path);

  // Commands and check boxes.
  void cmdOpen_Click();
  void cmdConvert_Click();
  void cmdPalette_Click();
  void cmdBatch_Click();
  void cmdInfo_Click();
  void mnuOptions_Click();
  void mnuAbout_Click();
  void chkPrev_Click();
  void showToolWindow(forms::Form& window, bool shown);
  void chkResize_Click();
  void chkPal_Click();
  void chkAutoPal_Click();
  void enableOpen(bool enabled);
  void enableConvert(bool enabled);
  void enableBatch(bool enabled);
  void enableInfo(bool enabled);

  // clang-format off
  QMenu*   mnuFile          = menu("mnuFile", "&File");
  QAction* mnuOpen          = menuItem(mnuFile, "mnuOpen",    "&Preview",          "Ctrl+O", [this] { cmdOpen_Click(); },    forms::Disabled);
  QAction* mnuConvert       = menuItem(mnuFile, "mnuConvert", "&Convert...",       "Ctrl+C", [this] { cmdConvert_Click(); }, forms::Disabled);
  QAction* mnuBatch         = menuItem(mnuFile, "mnuBatch",   "&Batch Convert...", "Ctrl+B", [this] { cmdBatch_Click(); },   forms::Disabled);
  QAction* mnuFileSeperator = separator(mnuFile, "mnuFileSeperator");
  QAction* mnuExit          = menuItem(mnuFile, "mnuExit",    "&Exit",             "",       [this] { Unload(); });
  QMenu*   mnuEdit          = menu("mnuEdit", "&Edit");
  QAction* mnuPalette       = menuItem(mnuEdit, "mnuPalette", "Change &Palette...", "Ctrl+P", [this] { cmdPalette_Click(); });
  QAction* mnuInfo          = menuItem(mnuEdit, "mnuInfo",    "View &File Info...", "Ctrl+F", [this] { cmdInfo_Click(); },    forms::Disabled);
  QAction* mnuOptions       = menuItem(mnuEdit, "mnuOptions", "&Options...",        "Ctrl+T", [this] { mnuOptions_Click(); }, forms::Disabled);
  QMenu*   mnuHelp          = menu("mnuHelp", "&Help");
  QAction* mnuAbout         = menuItem(mnuHelp, "mnuAbout",   "&About...",          "",       [this] { mnuAbout_Click(); });

  QLabel*            lblSource       = autoLabel("lblSource", "Source Directory:",                                    { 120,  30, 1230,  195});
  forms::ComboBox*   lstSource       = comboBox ("lstSource",                                                         { 120, 360, 3855,  315}, lblSource, [this] { lstSource_Change(); });
  QPushButton*       cmdSourceBrowse = button   ("cmdSourceBrowse", "Browse", "Browse for Source Directory",          {3120,   0,  855,  255}, [this] { cmdSourceBrowse_Click(); });
  QLabel*            lblDest         = autoLabel("lblDest", "Conversion Target Directory:",                           {4200,  30, 2025,  195});
  forms::ComboBox*   lstDest         = comboBox ("lstDest",                                                           {4200, 360, 4215,  315}, lblDest, [this] { lstDest_Change(); });
  QPushButton*       cmdDestBrowse   = button   ("cmdDestBrowse", "Browse", "Browse for Conversion Target Directory", {7560,   0,  855,  255}, [this] { cmdDestBrowse_Click(); });
  forms::FileList*   filSource       = add<forms::FileList>("filSource",                                              { 120, 720, 3375, 3405}, "*.bmp", QListView::ExtendedSelection, [this] { filSource_Click(); }, [this] { filSource_DblClick(); });

  forms::Frame*       Frame1           = frame("Frame1", "",                                                           {3600,  720, 4815, 3375});
  QCheckBox*          chkPrev          = Frame1->checkBox ("chkPrev",     "Show Preview window",                       { 120,  240, 2175,  255}, [this] { chkPrev_Click(); });
  QCheckBox*          chkAutoPrev      = Frame1->checkBox ("chkAutoPrev", "Auto Preview",                              { 480,  480, 1815,  255}, [this] { state.AutoPrev = chkAutoPrev->isChecked(); }, forms::Disabled);
  QCheckBox*          chkResize        = Frame1->checkBox ("chkResize",   "Resize Window to Fit",                      { 480,  720, 1815,  255}, [this] { chkResize_Click(); }, forms::Disabled);
  QCheckBox*          chkPal           = Frame1->checkBox ("chkPal",      "Show Palette window",                       {2400,  240, 2055,  255}, [this] { chkPal_Click(); });
  QCheckBox*          chkAutoPal       = Frame1->checkBox ("chkAutoPal",  "Auto Palette Selection",                    {2400,  480, 2055,  255}, [this] { chkAutoPal_Click(); });
  QCheckBox*          chkSearch        = Frame1->checkBox ("chkSearch",   "Search Sub-folders",                        {2760,  720, 1695,  255}, [this] { state.Search = chkSearch->isChecked(); }, forms::Disabled);
  QLabel*             Label2           = Frame1->autoLabel("Label2", "Palette Directory:",                             { 120, 1110, 1215,  195});
  QPushButton*        cmdBrowsePal     = Frame1->button   ("cmdBrowsePal", "Browse", "Browse for Palette Directory",   {3600, 1080,  855,  255}, [this] { cmdBrowsePal_Click(); });
  forms::ComboBox*    lstPalette       = Frame1->comboBox ("lstPalette",                                               { 120, 1440, 4335,  315}, Label2);
  QLabel*             Label3           = Frame1->autoLabel("Label3", "Default Palette:",                               { 120, 1830, 1095,  195});
  QPushButton*        cmdBrowseDefault = Frame1->button   ("cmdBrowseDefault", "Browse", "Browse for Default Palette", {3600, 1800,  855,  255}, [this] { cmdBrowseDefault_Click(); });
  forms::ComboBox*    lstDefault       = Frame1->comboBox ("lstDefault",                                               { 120, 2160, 4335,  315}, Label3);
  QLabel*             Label1           = Frame1->label    ("Label1", "Current Palette:",                               { 120, 2520, 1335,  255});
  forms::ElidedLabel* lblPalFile       = Frame1->add<forms::ElidedLabel>("lblPalFile",                                 { 120, 2760, 4575,  495}, Label1, QFrame::Panel | QFrame::Sunken);

  QPushButton* cmdOpen    = button("cmdOpen",    "Sh&ow Preview",     { 120, 4200, 1335, 495}, [this] { cmdOpen_Click(); },    forms::Disabled);
  QPushButton* cmdConvert = button("cmdConvert", "&Convert Picture",  {1560, 4200, 1335, 495}, [this] { cmdConvert_Click(); }, forms::Disabled);
  QPushButton* cmdBatch   = button("cmdBatch",   "&Batch Conversion", {3000, 4200, 1455, 495}, [this] { cmdBatch_Click(); },   forms::Disabled);
  QPushButton* cmdPalette = button("cmdPalette", "Change &Palette",   {4560, 4200, 1335, 495}, [this] { cmdPalette_Click(); });
  QPushButton* cmdInfo    = button("cmdInfo",    "View &File Info",   {6000, 4200, 1095, 495}, [this] { cmdInfo_Click(); },    forms::Disabled);
  QPushButton* cmdExit    = button("cmdExit",    "Exit",              {7320, 4200, 1095, 495}, [this] { Unload(); });
  // clang-format on

  bool started_ = false;
};

inline forms::Global<MainForm> frmMain;

}  // namespace mill
