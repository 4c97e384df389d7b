#pragma once

#include "platform/forms/form.h"

namespace mill {

/// Edits three defaults: the directories that the program starts with and the palette for pictures
/// without one. The main window shows them after the next start.
class OptionsForm final : public forms::Form {
 public:
  OptionsForm();

 private:
  void Form_Load() override;
  void textChanged() { cmdApply->setEnabled(true); }
  void cmdSourceBrowse_Click();
  void cmdDestBrowse_Click();
  void cmdPalBrowse_Click();
  void cmdOK_Click();
  void cmdApply_Click();

  void showDirectories();
  void storeDirectories();
  void chooseDirectory(const char* caption, QLineEdit& box, const QLineEdit& other);

  // clang-format off
  QLabel*      lblSource       = label   ("lblSource", "Default Soruce directory:",                              { 120,  120, 4980, 195});
  QLineEdit*   txtSource       = lineEdit("txtSource",                                                           { 120,  360, 4980, 315}, lblSource, [this] { textChanged(); });
  QPushButton* cmdSourceBrowse = button  ("cmdSourceBrowse", "Browse", "Browse for Default Source Directory",    {5220,  360,  900, 315}, [this] { cmdSourceBrowse_Click(); });
  QLabel*      lblDest         = label   ("lblDest", "Default Destination Directory:",                           { 120,  870, 4980, 195});
  QLineEdit*   txtDest         = lineEdit("txtDest",                                                             { 120, 1110, 4980, 315}, lblDest, [this] { textChanged(); });
  QPushButton* cmdDestBrowse   = button  ("cmdDestBrowse", "Browse", "Browse for Default Destination Directory", {5220, 1110,  900, 315}, [this] { cmdDestBrowse_Click(); });
  QLabel*      lblPalette      = label   ("lblPalette", "Default Palette:",                                      { 120, 1620, 4980, 195});
  QLineEdit*   txtPalette      = lineEdit("txtPalette",                                                          { 120, 1860, 4980, 315}, lblPalette, [this] { textChanged(); });
  QPushButton* cmdPalBrowse    = button  ("cmdPalBrowse", "Browse", "Browse for Default Palette",                {5220, 1860,  900, 315}, [this] { cmdPalBrowse_Click(); });
  QPushButton* cmdOK           = button  ("cmdOK",     "OK",                                                     {2595, 2595, 1095, 375}, [this] { cmdOK_Click(); },    forms::Default);
  QPushButton* cmdCancel       = button  ("cmdCancel", "Cancel",                                                 {3810, 2595, 1095, 375}, [this] { Unload(); },         forms::Cancel);
  QPushButton* cmdApply        = button  ("cmdApply",  "Apply",                                                  {5025, 2595, 1095, 375}, [this] { cmdApply_Click(); }, forms::Disabled);
  // clang-format on
};

inline forms::Global<OptionsForm> frmOptions;

}  // namespace mill
