#include "mainwindow/frm_main.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>

#include "conversion/frm_convert.h"
#include "conversion/frm_preview_toolbar.h"
#include "mainwindow/program_settings.h"
#include "palette/frm_pal_select.h"
#include "palette/frm_pal_toolbar.h"
#include "picture/hooks.h"
#include "picture/load_palette.h"
#include "platform/system/application.h"
#include "platform/system/files.h"

namespace mill {

MainForm::MainForm()
    : Form({.Name = "frmMain",
            .Caption = "Raster Mill",
            .Client = {8535, 4815},
            .Position = forms::StartUpPosition::CentreScreen,
            .MinButton = true,
            .Icon = true}) {
  // Qt alternates between ambiguous mnemonics; the menu "File" keeps this one, and in the menu the
  // same letter once more means the button.
  cmdInfo->setShortcut({});
  mnuFile->installEventFilter(this);
  setAcceptDrops(true);
  auto* refresh = new QAction(this);
  refresh->setShortcut(Qt::Key_F5);
  connect(refresh, &QAction::triggered, this, [this] { refreshFiles(); });
  addAction(refresh);
}

bool MainForm::eventFilter(QObject* watched, QEvent* event) {
  const bool isKey = watched == mnuFile && event->type() == QEvent::KeyPress;
  if (!isKey || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F || !cmdInfo->isEnabled()) {
    return Form::eventFilter(watched, event);
  }
  // Leaving the menu and then its bar gives the focus back.
  for (QWidget* open : {static_cast<QWidget*>(mnuFile), mnuFile->parentWidget()}) {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(open, &escape);
  }
  QMetaObject::invokeMethod(cmdInfo, &QPushButton::click, Qt::QueuedConnection);
  return true;
}

void MainForm::Form_Load() {
  readSettings();
  if (!sys::hasFiles(state.SourceDir)) state.SourceDir = sys::App.Path();
  frmConvert.load();
  hooks.sourceDirectory = [this] { return filSource->Path(); };
  frmConvert->destinationDirectory = [this] { return lstDest->Text(); };
  frmPalToolbar.load();
  frmPreviewToolbar.load();
  hooks.choosePalette = selectPalette;
  hooks.showPaletteFile = [this] { lblPalFile->showText(state.CurrentPaletteFile); };
  fillBoxes();
  loadDefaultPalette();
  setCheckBoxes();
  started_ = true;
}

void MainForm::fillBoxes() {
  const auto fill = [](forms::ComboBox& box, const std::string& value) {
    box.AddItem(value);
    box.setText(value);
  };
  fill(*lstSource, state.SourceDir);
  fill(*lstDest, state.DestDir);
  fill(*lstPalette, state.PalDir);
  fill(*lstDefault, state.DefaultPalette);
}

void MainForm::loadDefaultPalette() {
  state.CurrentPaletteFile = state.DefaultPalette;
  LoadPalette();
  hooks.showPaletteFile();
}

void MainForm::setCheckBoxes() {
  chkPal->setChecked(state.ShowPal);
  chkPrev->setChecked(state.ShowPrev);
  chkAutoPrev->setChecked(state.AutoPrev);
  chkAutoPal->setChecked(state.AutoPal);
  chkResize->setChecked(state.ResizeFit);
  chkSearch->setChecked(state.Search);
}

void MainForm::Form_Unload() {
  // In reverse loading order; this window was loaded first.
  while (loaded().size() > 1) loaded().back()->Unload();
  hooks = {};
  state.PreviewDC.reset();
  writeSettings();
}

void MainForm::Form_Resize() {
  if (isMaximized()) return;
  // The tool windows are hidden and shown together with this one.
  if (state.ShowPal) frmPalToolbar->setVisible(!isMinimized());
  if (state.ShowPrev) frmPreviewToolbar->setVisible(!isMinimized());
}

}  // namespace mill
