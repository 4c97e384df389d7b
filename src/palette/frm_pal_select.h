#pragma once

#include <string>
#include <vector>

#include "platform/forms/form.h"
#include "platform/forms/gesture_list.h"
#include "platform/system/text.h"

namespace mill {

/// Lets the user choose one of several palette files, after trying them on the open picture. Only
/// OK and Default close it; the choice is stored in `CurrentPaletteFile`.
class PalSelectForm final : public forms::Form {
 public:
  PalSelectForm();

  /// Offers these files for a picture.
  void offer(const QStringList& paths, const QString& picture);

 private:
  void lstPalette_Click();
  void cmdPrev_Click();
  void cmdDefault_Click();
  void cmdOK_Click();
  std::string selectedPath() const { return sys::bytesOf(lstPalette->chosenText()); }

  // clang-format off
  QLabel*             Label1     = label("Label1", "There is more than one palette with the same index.", { 120,  120, 7095,  195});
  QLabel*             Label2     = label("Label2", "Choose one from the list below:",                     { 120,  360, 7095,  195});
  forms::GestureList* lstPalette = add<forms::GestureList>("lstPalette",                                  { 120,  600, 7095, 1455}, Label2, QListView::SingleSelection, [this] { lstPalette_Click(); });
  QPushButton*        cmdPrev    = button("cmdPrev",    "Preview",                                        { 120, 2160, 1335,  375}, [this] { cmdPrev_Click(); }, forms::Disabled);
  QPushButton*        cmdDefault = button("cmdDefault", "Default",                                        {3000, 2160, 1335,  375}, [this] { cmdDefault_Click(); });
  QPushButton*        cmdOK      = button("cmdOK",      "OK",                                             {5880, 2160, 1335,  375}, [this] { cmdOK_Click(); }, forms::Disabled);
  // clang-format on
};

inline forms::Global<PalSelectForm> frmPalSelect;

/// Shows the chooser with these paths and returns when the user has decided.
void selectPalette(const std::vector<std::string>& paths);

}  // namespace mill
