#include "windows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <fstream>

#include "harness.h"
#include "mainwindow/frm_main.h"
#include "palette/frm_pal_extract.h"
#include "palette/frm_pal_toolbar.h"
#include "picture/find_palette.h"
#include "picture/program_state.h"
#include "plain_loop.h"

namespace mill::bench {

namespace {

namespace fs = std::filesystem;

void print(const char* what, const std::vector<double>& seconds, const char* aim) {
  std::printf("%-66s %9.3f ms, at most %9.3f   aim %s\n", what, 1e3 * median(seconds),
              1e3 * largest(seconds), aim);
  std::fflush(stdout);
}

void click(int row) {
  auto* list = control<QListView>("frmMain", "filSource");
  list->scrollTo(list->model()->index(row, 0));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualRect(list->model()->index(row, 0)).center());
}

void tick(const char* box, bool on) {
  control<QCheckBox>("frmMain", box)->setChecked(on);
  settle();
}

void clickToPreview(const Folders& folders) {
  empty(folders.source);
  const auto names = makePictures(folders.source, 10, 640, 480);
  showMainWindow(folders);
  tick("chkPrev", true);
  waitUntilShown("frmPreviewToolbar");
  tick("chkAutoPrev", true);
  std::vector<double> times;
  for (int row = 0; row < 10; ++row) {
    // The preview has been painted when the click returns.
    const double whole = measure([&] { click(row); }).elapsed;
    const double files =
        measure([&] {
          convertPlainly({names[static_cast<std::size_t>(row)]}, folders.source.string(),
                         folders.target.string(), 640, 480);
        }).elapsed;
    require(!state.PictureFileName.empty(), "the picture is open");
    times.push_back(whole - files);
    settle();
  }
  print("click to painted preview, 640 x 480, beyond reading and writing", times, "50");
  unloadMainWindow();
}

void dragPreview(const Folders& folders) {
  empty(folders.source);
  makePictures(folders.source, 1, 4096, 4096);
  showMainWindow(folders);
  tick("chkPrev", true);
  waitUntilShown("frmPreviewToolbar");
  tick("chkResize", false);
  tick("chkAutoPrev", true);
  click(0);
  settle();
  std::vector<double> times;
  QWidget* preview = window("frmPreviewToolbar");
  for (int step = 0; step < 30; ++step) {
    times.push_back(measure([&] {
                      preview->resize(300 + 20 * step, 250 + 15 * step);
                      QCoreApplication::processEvents();
                    }).elapsed);
  }
  print("a step of a drag, 4096 x 4096 stretched to 300 x 250 up to 880 x 685", times, "100");
  unloadMainWindow();
}

void searchPalette(const fs::path& folder) {
  makePalettes(folder, 10000);
  state.PalDir = "Z:" + folder.string();
  state.Search = true;
  state.PictureRecord.PaletteIndex = 1;
  FindPalette();
  std::vector<double> times;
  for (int i = 0; i < 10; ++i) times.push_back(measure([] { FindPalette(); }).elapsed);
  require(state.CurrentPaletteFile.ends_with("\\10000\\1.pal"), "the palette was found");
  print("a palette among 10,000 sub-directories", times, "100");
  state = {};
  fs::remove_all(folder);
}

void updateSwatches256() {
  frmPalToolbar->show();
  waitUntilShown("frmPalToolbar");
  std::vector<double> times;
  for (std::uint8_t i = 1; i < 100; ++i) {
    for (ColourEntry& colour : state.PaletteTable) colour.Red = i;
    times.push_back(measure([] { frmPalToolbar->update(); }).elapsed);
    settle();
  }
  print("an update of all 256 swatches", times, "0.1");
  frmPalToolbar->Unload();
  settle();
  const double load = measure([] { frmPalToolbar.load(); }).elapsed;
  print("loading the swatch window", {load}, "");
  frmPalToolbar->Unload();
  settle();
  state = {};
}

/// A list file of `count` palettes that have no colour in common.
void makeList(const fs::path& path, int count) {
  std::string bytes(static_cast<std::size_t>(52 + 1032 * count), '\0');
  for (std::size_t i = 52; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 31 + i / 1032);
  for (std::size_t i = 0; i < 4; ++i) bytes[4 + i] = static_cast<char>(count >> 8 * i);
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<long>(bytes.size()));
}

/// Browses for a list file in the extractor.
void pickFile(const fs::path& path) {
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    require(dialog, "the file dialog is shown");
    dialog->selectFile(QString::fromStdString(path.string()));
    static_cast<QDialog*>(dialog)->accept();
  });
  control<QPushButton>("frmPalExtract", "cmdSourceBrowse")->click();
}

void walkList(const fs::path& folder) {
  makeList(folder / "long.ksl", 32767);
  frmPalExtract->show();
  waitUntilShown("frmPalExtract");
  std::vector<double> loads, steps;
  for (int i = 0; i < 5; ++i) {
    pickFile(folder / "long.ksl");
    control<QComboBox>("frmPalExtract", "lstSource")->lineEdit()->clear();
    QTest::keyClick(control<QComboBox>("frmPalExtract", "lstSource")->lineEdit(), Qt::Key_X);
    loads.push_back(
        measure([] { control<QPushButton>("frmPalExtract", "cmdLoad")->click(); }).elapsed);
  }
  auto* next = control<QPushButton>("frmPalExtract", "cmdNext");
  require(next->isEnabled() && next->isVisible(), "the list was loaded");
  for (int i = 0; i < 50; ++i) {
    steps.push_back(measure([&] {
                      next->click();
                      window("frmPalExtract")->repaint();
                    }).elapsed);
  }
  print("loading a list of 32,767 palettes", loads, "500");
  print("a step through the list, painted", steps, "20");
  frmPalExtract->Unload();
  settle();
}

void listFiles(const Folders& folders) {
  empty(folders.source);
  for (int i = 0; i < 100000; ++i) {
    std::ofstream(folders.source / ("picture" + std::to_string(100000 + i) + ".bmp"));
  }
  const double show = measure([&] { showMainWindow(folders); }).elapsed;
  print("the main window with a list of 100,000 files, all idle work included", {show}, "1000");
  auto* list = control<QListView>("frmMain", "filSource");
  const double all =
      measure([&] { QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier); }).elapsed;
  require(state.SelectedCount == 100000, "all are selected");
  print("Ctrl+A on 100,000 files", {all}, "1000");
  unloadMainWindow();
  empty(folders.source);
}

}  // namespace

void runWindows(const fs::path& folder) {
  const Folders folders{folder / "source", folder / "target", {}};
  empty(folders.target);
  clickToPreview(folders);
  dragPreview(folders);
  searchPalette(folder / "palettes");
  updateSwatches256();
  walkList(folder);
  listFiles(folders);
}

}  // namespace mill::bench
