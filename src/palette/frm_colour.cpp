#include "palette/frm_colour.h"

#include <QAction>
#include <QKeyEvent>

#include "conversion/show_preview.h"
#include "dialogs/frm_save.h"
#include "palette/frm_pal_extract.h"
#include "palette/number_text.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace mill {

namespace {

constexpr QKeyCombination kUndo = Qt::CTRL | Qt::Key_Z;
constexpr QKeyCombination kRedo = Qt::CTRL | Qt::SHIFT | Qt::Key_Z;

/// The number in a box, limited to the range of a byte.
std::uint8_t byteOf(const QLineEdit& box) {
  return static_cast<std::uint8_t>(numberOf(sys::bytesOf(box.text()), 0, 255));
}

std::uint8_t inverse(std::uint8_t value) {
  return static_cast<std::uint8_t>(255 - value);
}

ColourEntry inverse(const ColourEntry& colour) {
  return {inverse(colour.Red), inverse(colour.Green), inverse(colour.Blue), colour.Extra};
}

/// One change of the working palette.
class PaletteChange final : public QUndoCommand {
 public:
  PaletteChange(ColourTable& palette, const ColourTable& after)
      : palette_(palette), before_(palette), after_(after) {}

  void undo() override { palette_ = before_; }
  void redo() override { palette_ = after_; }

 private:
  ColourTable& palette_;
  const ColourTable before_, after_;
};

}  // namespace

ColourForm::ColourForm()
    : Form({.Name = "frmColour",
            .Caption = " View/Edit Palette",
            .Client = {5415, 5655},
            .Position = forms::StartUpPosition::CentreOwner,
            .ControlBox = false}) {
  setAcceptDrops(true);
  cmdOK->setFocus();  // pressing Enter right away means OK
  QAction* const undo = changes_.createUndoAction(this);
  QAction* const redo = changes_.createRedoAction(this);
  undo->setShortcut(kUndo);
  redo->setShortcut(kRedo);
  addActions({undo, redo});
  connect(&changes_, &QUndoStack::indexChanged, this, [this] { showPalette(); });
  for (QLineEdit* box : {txtRed, txtGreen, txtBlue, txtIndex}) box->installEventFilter(this);
}

/// A box undoes its own typing first, and leaves the keys to the palette when there is none.
bool ColourForm::eventFilter(QObject* watched, QEvent* event) {
  const auto* box = qobject_cast<QLineEdit*>(watched);
  if (!box || event->type() != QEvent::ShortcutOverride) return Form::eventFilter(watched, event);
  const QKeyCombination keys = static_cast<QKeyEvent*>(event)->keyCombination();
  const bool isUndo = keys == kUndo && !box->isUndoAvailable();
  const bool isRedo = keys == kRedo && !box->isRedoAvailable();
  return isUndo || isRedo;
}

void ColourForm::change(const ColourTable& colours) {
  changes_.push(new PaletteChange(WorkingPalette, colours));
}

void ColourForm::showPalette() {
  palette1->setColours(WorkingPalette);
}

void ColourForm::Form_Load() {
  WorkingPalette = state.PaletteTable;
  showPalette();
  txtIndex->setText(QStringLiteral("0"));
}

void ColourForm::showColour(int index) {
  const QString number = QString::number(index);
  if (txtIndex->text() != number) txtIndex->setText(number);  // which moves the cursor
  palette1->setCurrent(index);
  const ColourEntry entry = WorkingPalette[static_cast<std::size_t>(index)];
  lblOrginal->setColour(entry);
  showNumbers(entry);
}

void ColourForm::showNumbers(const ColourEntry& entry) {
  txtRed->setText(QString::number(entry.Red));
  txtGreen->setText(QString::number(entry.Green));
  txtBlue->setText(QString::number(entry.Blue));
}

void ColourForm::newColour() {
  lblCurrent->setColour(boxColour());
}

void ColourForm::txtIndex_Change() {
  showColour(byteOf(*txtIndex));
}

ColourEntry ColourForm::boxColour() const {
  return {.Red = byteOf(*txtRed), .Green = byteOf(*txtGreen), .Blue = byteOf(*txtBlue)};
}

void ColourForm::cmdNew_Click() {
  const std::uint8_t index = byteOf(*txtIndex);
  ColourEntry colour = boxColour();
  colour.Extra = WorkingPalette[index].Extra;
  ColourTable changed = WorkingPalette;
  changed[index] = colour;
  change(changed);
}

void ColourForm::cmdInvert_Click() {
  showNumbers(inverse(boxColour()));
}

void ColourForm::cmdInvertAll_Click() {
  ColourTable changed = WorkingPalette;
  for (ColourEntry& colour : changed) colour = inverse(colour);
  change(changed);
}

std::string ColourForm::pickFile(const char* caption) {
  rememberFile();
  state.BrowseResult = state.DefaultPalette;
  state.FilePattern = "*.pal";
  frmSave->setCaption(caption);
  frmSave->showModal(this);
  // The close box unloads the dialog without changing the names; that isn't a choice.
  const bool chosen =
      frmSave.isLoaded() && !state.BrowseResult.empty() && !state.FileResult.empty();
  if (chosen) return sys::join(state.BrowseResult, state.FileResult);
  keepFile();
  return {};
}

void ColourForm::rememberFile() {
  directoryBefore_ = state.BrowseResult;
  nameBefore_ = state.FileResult;
}

void ColourForm::keepFile() {
  state.BrowseResult = directoryBefore_;
  state.FileResult = nameBefore_;
}

void ColourForm::cmdLoad_Click() {
  const std::string path = pickFile("Load Palette File");
  if (!path.empty()) loadFile(path);
}

void ColourForm::Form_Drop(const QWidget*, const std::string& path) {
  if (!sys::hasExtension(path, ".pal")) return;
  rememberFile();
  state.BrowseResult = sys::directoryOf(path);
  state.FileResult = sys::fileNameOf(path);
  loadFile(path);
}

void ColourForm::loadFile(const std::string& path) {
  std::string head;  // unused: files saved here get the head of the current palette
  ColourTable loaded;
  if (!readPaletteFile(path, head, loaded).isRead) return keepFile();
  hasFile_ = true;
  change(loaded);
}

void ColourForm::cmdSave_Click() {
  std::string path = pickFile("Save File");
  if (path.empty()) return;
  if (!path.ends_with(".pal")) path += ".pal";
  if (!writePaletteFile(path, WorkingPalette)) return keepFile();
  hasFile_ = true;
}

void ColourForm::cmdExtract_Click() {
  frmPalExtract->showModal(this);
}

void ColourForm::cmdOK_Click() {
  if (hasFile_) {
    state.CurrentPaletteFile = sys::join(state.BrowseResult, state.FileResult);
    LoadPalette();
    if (!state.PictureFileName.empty() && state.ShowPrev) renewPreview();
  }
  Unload();
}

}  // namespace mill
