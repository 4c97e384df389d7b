#include "palette/frm_pal_extract.h"

#include <QFileDialog>
#include <QTest>
#include <QTimer>

#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::control;

constexpr const char* kForm = "frmPalExtract";

/// Over the lists "sky.ksl" with the palettes 25, -7, 25 and "two.ksl" with 12, 0.
class Extractor : public test::WindowTest {
 protected:
  Extractor() {
    folder.makeFolder("out/sky");
    folder.write("sky.ksl", sky);
    folder.write("two.ksl", model::paletteList({{first, 12}, {second, 0}}));
    frmPalExtract->show();
  }
  static void press(const char* button) { test::press(kForm, button); }
  /// Picks a list file in the file dialog and loads it.
  void load(const std::string& name) {
    QTimer::singleShot(0, qApp, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      EXPECT_EQ(dialog->nameFilters(), QStringList{"KSL files (*.ksl)"});
      dialog->selectFile(QString::fromStdString(folder.path(name).string()));
      static_cast<QDialog*>(dialog)->accept();
    });
    press("cmdSourceBrowse");
    press("cmdLoad");
  }
  static void expectShown(const char* count, const char* index, const model::Colours& colours) {
    EXPECT_EQ(control<QLineEdit>(kForm, "txtNumber")->text(), count);
    EXPECT_EQ(control<QLineEdit>(kForm, "txtIndex")->text(), index);
    test::expectSwatches(kForm, colours);
  }

  const model::Colours first = model::someColours(1), second = model::someColours(2),
                       third = model::someColours(3);
  const test::Bytes sky = model::paletteList({{first, 25}, {second, -7}, {third, 25}});
};

TEST_F(Extractor, AListIsShownFromItsPlaceAndABadOneChangesNothing) {
  // The number of palettes in the head, and the size of the file.
  const std::tuple<const char*, std::uint32_t, std::uintmax_t> cases[] = {
      {"head cut", 3, 51},
      {"last byte missing", 3, 3147},
      {"none", 0, 3148},
      {"one too many", 32768, 52 + 32768 * 1032}};
  load("sky.ksl");
  for (int i = 0; i < 3; ++i) press("cmdNext");
  expectShown("3", "25", third);
  load("two.ksl");  // has no third palette
  expectShown("2", "0", second);
  load("sky.ksl");
  for (const auto& [name, count, size] : cases) {
    SCOPED_TRACE(name);
    test::Bytes list = sky;
    for (std::size_t i = 0; i < 4; ++i) list[4 + i] = static_cast<std::uint8_t>(count >> (8 * i));
    list.resize(size);
    folder.write(name, list);
    load(name);
    messages.expectLast(1, "This file is not a valid palette list.", "Warning!",
                        QMessageBox::Critical);
    expectShown("3", "-7", second);
  }
}

TEST_F(Extractor, SavesThePaletteOnShowUnderItsIndex) {
  // The list, steps from its first palette, the destination, whether the list's name is added, and
  // what is written where; nothing if that fails.
  const std::tuple<const char*, int, const char*, bool, std::string, const model::Colours*>
      cases[] = {{"sky.ksl", 0, "out", false, "\\25.pal", &first},
                 {"sky.ksl", 2, "out", true, "\\sky\\25.pal", &third},
                 {"name.long", 1, "out", true, "\\name.\\-7.pal", &second},
                 {"sky.ksl", 0, "missing", true, "\\sky\\25.pal", nullptr}};
  folder.write("name.long", sky);
  state.PaletteHeader = std::string("a head \0 of any bytes \xFF", 24);
  for (const auto& [list, steps, dest, add, below, colours] : cases) {
    SCOPED_TRACE(dest + below);
    test::type(kForm, "lstDest", folder.drive(dest));
    load(list);
    for (int i = 0; i < 2; ++i) press("cmdPrev");
    for (int i = 0; i < steps; ++i) press("cmdNext");
    control<QCheckBox>(kForm, "chkAdd")->setChecked(add);
    press("cmdSave");
    std::string path = folder.drive(dest) + below;
    if (!colours) {
      messages.expectLast(1, "The palette file can't be written.\n" + path, "Warning!",
                          QMessageBox::Critical);
      continue;
    }
    messages.expectLast(1, "Palette file saved!", "RasterMill", QMessageBox::NoIcon);
    std::replace(path.begin(), path.end(), '\\', '/');
    EXPECT_EQ(test::readFile(path.substr(2)), model::paletteFile(state.PaletteHeader, *colours));
  }
}

}  // namespace
}  // namespace mill
