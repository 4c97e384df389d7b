#include "conversion/frm_convert.h"

#include <QCoreApplication>
#include <QStyle>

#include "picture/hooks.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "picture/warn.h"
#include "picture/write_bitmap.h"
#include "platform/forms/notification.h"
#include "platform/system/file_io.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace mill {

ConvertForm::ConvertForm()
    : Form({.Name = "frmConvert",
            .Caption = "Convert Bitmap",
            .Client = {3975, 3015},
            .Position = forms::StartUpPosition::CentreOwner,
            .ControlBox = false}) {
  cmdYes->setIcon(style()->standardIcon(QStyle::SP_DialogApplyButton));
  cmdNo->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));
}

void ConvertForm::Form_Load() {
  hooks.isConverting = [this] { return active() == this; };
  hooks.startProgress = [this](std::int32_t total) { count.total = total; };
  hooks.incOpenProgress = [this](std::int16_t num, std::int32_t n) { incOpenProgress(num, n); };
  hooks.tell = [this](const forms::Message& message) {
    // What the chooser's own preview says isn't about the run.
    return run_ && active() == this ? run_->tell(message) : forms::MsgBox(message);
  };
  for (auto* bar : {Progress1, Progress2}) {
    bar->subject = [this] { return run_ ? sys::shown(run_->progressText()) : QString(); };
  }
  hooks.whichPicture = [this] { return run_ ? run_->whichPicture() : std::string(); };
  hooks.incProgress = [this](std::int16_t num, std::int32_t n) { incProgress(num, n); };
}

void ConvertForm::incProgress(std::int16_t num, std::int32_t times) {
  count.report(num, times, [this](std::int32_t percent) { Progress1->pass(percent); });
  Progress1->follow();
}

void ConvertForm::incOpenProgress(std::int16_t num, std::int32_t times) {
  count.report(num, times, [this](std::int32_t percent) { Progress2->pass(percent); });
  Progress2->follow();
}

void ConvertForm::cmdYes_Click() {
  if (directoriesAreOne()) return hide();
  enableButtons(false);
  convertSelection();
  Progress1->paintNow();
  Progress2->paintNow();
  state.PictureFileName.clear();
  // Discards clicks and keys of the meantime: this window is modal and its buttons are disabled.
  QCoreApplication::processEvents();
  enableButtons(true);
  hide();
}

/// Every picture would overwrite itself; warn once instead of for each of them.
bool ConvertForm::directoriesAreOne() const {
  if (!sys::isSame(hooks.sourceDirectory(), destinationDirectory())) return false;
  warn(Fault::SameDirectory);
  return true;
}

void ConvertForm::enableButtons(bool enabled) {
  cmdYes->setEnabled(enabled);
  cmdNo->setEnabled(enabled);
  if (!enabled) repaint();
}

void ConvertForm::convertSelection() {
  const sys::DirectoryHold hold(destinationDirectory());
  run_.emplace(hooks.sourceDirectory(), state.SelectedCount);
  for (std::int32_t i = 0; i < state.SelectedCount && run_->goesOn(); ++i) {
    const std::string& name = state.SelectedFiles[static_cast<std::size_t>(i)];
    run_->next(name);
    convertFile(name);
  }
  forms::notify(run_->result());
  run_->sumUp();
  run_.reset();
}

/// Skips a picture that is refused: its name doesn't become that of the open picture.
void ConvertForm::convertFile(const std::string& name) {
  Progress2->setValue(100);
  Progress1->setValue(0);
  if (name != state.PictureFileName) {
    count.current = 0;
    OpenPicture(sys::join(hooks.sourceDirectory(), name), &run_->paletteNames());
  }
  if (name == state.PictureFileName) {
    count.current = 0;
    if (WriteBitmap(sys::join(destinationDirectory(), name))) run_->succeed();
  }
  Progress2->setValue(0);
}

}  // namespace mill
