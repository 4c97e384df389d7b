#pragma once

#include "platform/forms/combo_box.h"
#include "platform/forms/dir_tree.h"
#include "platform/forms/file_list.h"
#include "platform/forms/form.h"

namespace mill {

/// Picks a file or takes a new name, for loading and saving. It starts in the directory of the path
/// in `BrowseResult` and returns the chosen directory there and the name as typed in `FileResult`.
/// Both are empty after Cancel. The buttons only hide the window, so the name is kept for the next
/// use.
class SaveForm final : public forms::Form {
 public:
  SaveForm();

 private:
  void Form_Load() override { Dir1_Change(); }
  void Form_Activate() override;
  void Dir1_Change() { File1->setPath(Dir1->Path()); }
  void File1_Click() { txtFilename->setText(File1->chosenText()); }
  void cmdOK_Click();
  void cmdCancel_Click();

  // clang-format off
  forms::DriveBox* Drive1      = add<forms::DriveBox>("Drive1",  { 120,  120, 2295,  315}, [this] { Dir1->setPath(Drive1->Drive()); });
  forms::DirTree*  Dir1        = add<forms::DirTree> ("Dir1",    { 120,  480, 2295, 2295}, [this] { Dir1_Change(); });
  forms::FileList* File1       = add<forms::FileList>("File1",   {2520,  120, 2295, 2655}, "*.*", QListView::SingleSelection, [this] { File1_Click(); });
  QLabel*          Label1      = label   ("Label1", "Filename:", { 120, 3045,  855,  195});
  QLineEdit*       txtFilename = lineEdit("txtFilename",         {1080, 3000, 3735,  315}, Label1);
  QPushButton*     cmdOK       = button("cmdOK",     "OK",       {4920,  120,  945,  375}, [this] { cmdOK_Click(); },     forms::Default);
  QPushButton*     cmdCancel   = button("cmdCancel", "Cancel",   {4920,  600,  945,  375}, [this] { cmdCancel_Click(); }, forms::Cancel);
  // clang-format on
};

inline forms::Global<SaveForm> frmSave;

}  // namespace mill
