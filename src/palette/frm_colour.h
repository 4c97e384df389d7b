#pragma once

#include <QUndoStack>

#include <string>

#include "formats/picture_record.h"
#include "palette/patch.h"
#include "palette/up_down.h"
#include "platform/forms/form.h"
#include "platform/forms/swatches.h"

namespace mill {

/// The palette editor. It works on a copy: edits leave the window only as a file, and OK makes the
/// file last loaded or saved here the current palette. Every change of the copy can be undone.
class ColourForm final : public forms::Form {
 public:
  ColourForm();

  /// Shows entry `index`.
  void showColour(int index);
  /// Shows the colour of the three boxes next to that of the entry.
  void newColour();

 private:
  void Form_Load() override;
  void Form_Drop(const QWidget* on, const std::string& path) override;
  void txtIndex_Change();
  void cmdOK_Click();
  void cmdExtract_Click();
  void cmdLoad_Click();
  void cmdSave_Click();
  void cmdInvertAll_Click();
  void cmdInvert_Click();
  void cmdNew_Click();

  bool eventFilter(QObject* watched, QEvent* event) override;

  /// Makes `colours` the working palette, in a step that can be undone.
  void change(const ColourTable& colours);
  void showPalette();
  ColourEntry boxColour() const;
  void showNumbers(const ColourEntry& entry);
  /// Lets the user pick a file and returns its full path, empty on Cancel.
  std::string pickFile(const char* caption);
  void rememberFile();
  /// Restores the names that were set before `rememberFile`.
  void keepFile();
  void loadFile(const std::string& path);

  ColourTable WorkingPalette{};
  QUndoStack changes_;
  /// Whether `BrowseResult` and `FileResult` name a file loaded or saved here.
  bool hasFile_ = false;
  std::string directoryBefore_;  ///< `BrowseResult` and `FileResult` before `rememberFile`
  std::string nameBefore_;

  // clang-format off
  forms::Swatches* palette1     = add<forms::Swatches>("palette1",             { 120,  120, 3855, 3855}, [this](int index) { showColour(index); });
  QPushButton*     cmdOK        = button("cmdOK",        "OK",                 {4035,  120, 1320,  375}, [this] { cmdOK_Click(); }, forms::Default);
  QPushButton*     cmdCancel    = button("cmdCancel",    "Cancel",             {4035,  600, 1320,  375}, [this] { Unload(); },      forms::Cancel);
  QPushButton*     cmdExtract   = button("cmdExtract",   "Extract Palette",    {4035, 1080, 1320,  375}, [this] { cmdExtract_Click(); });
  QPushButton*     cmdLoad      = button("cmdLoad",      "Load Palette",       {4035, 1560, 1320,  375}, [this] { cmdLoad_Click(); });
  QPushButton*     cmdSave      = button("cmdSave",      "Save Palette",       {4035, 2040, 1320,  375}, [this] { cmdSave_Click(); });
  QPushButton*     cmdInvertAll = button("cmdInvertAll", "Invert All Colours", {4035, 2520, 1320,  375}, [this] { cmdInvertAll_Click(); });
  QPushButton*     cmdInvert    = button("cmdInvert",    "Invert Colour",      {4035, 3000, 1320,  375}, [this] { cmdInvert_Click(); });
  QPushButton*     cmdNew       = button("cmdNew",       "Set New Colour",     {4035, 3480, 1320,  375}, [this] { cmdNew_Click(); });

  QLabel*          lblRed       = label      ("lblRed",   "Red:",   { 120, 4125, 555, 195});
  QLineEdit*       txtRed       = lineEdit   ("txtRed",             { 720, 4080, 615, 285}, lblRed, [this] { newColour(); });
  UpDown*          updRed       = add<UpDown>("updRed",             {1335, 4080, 240, 285}, txtRed, 0, 255);
  QLabel*          lblGreen     = label      ("lblGreen", "Green:", { 120, 4500, 555, 195});
  QLineEdit*       txtGreen     = lineEdit   ("txtGreen",           { 720, 4455, 615, 285}, lblGreen, [this] { newColour(); });
  UpDown*          updGreen     = add<UpDown>("updGreen",           {1335, 4455, 240, 285}, txtGreen, 0, 255);
  QLabel*          lblBlue      = label      ("lblBlue",  "Blue:",  { 120, 4875, 555, 195});
  QLineEdit*       txtBlue      = lineEdit   ("txtBlue",            { 720, 4830, 615, 285}, lblBlue, [this] { newColour(); });
  UpDown*          updBlue      = add<UpDown>("updBlue",            {1335, 4830, 240, 285}, txtBlue, 0, 255);
  QLabel*          lblIndex     = label      ("lblIndex", "Index:", { 120, 5250, 555, 195});
  QLineEdit*       txtIndex     = lineEdit   ("txtIndex",           { 720, 5205, 615, 285}, lblIndex, [this] { txtIndex_Change(); });
  UpDown*          updIndex     = add<UpDown>("updIndex",           {1335, 5205, 240, 285}, txtIndex, 0, 255);

  forms::Frame*    Frame1       = frame("Frame1", "Current",  {1800, 4080, 1215, 1410});
  Patch*           lblCurrent   = Frame1->add<Patch>("lblCurrent", { 120,  315,  975,  975});
  forms::Frame*    Frame2       = frame("Frame2", "Orginal",  {3120, 4080, 1215, 1410});
  Patch*           lblOrginal   = Frame2->add<Patch>("lblOrginal", { 120,  315,  975,  975});
  // clang-format on
};

inline forms::Global<ColourForm> frmColour;

}  // namespace mill
