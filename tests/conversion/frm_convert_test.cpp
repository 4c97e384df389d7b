#include "conversion/frm_convert.h"

#include <QComboBox>
#include <QProgressBar>
#include <QTest>

#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Answer;
using model::convertedBitmap;
using test::Bytes;
using test::control;
using test::press;
using test::readFile;
using Texts = std::vector<std::string>;

class ConvertTest : public test::MainWindowTest {
 protected:
  static bool enabled(const char* form, const char* name) {
    return control(form, name)->isEnabled();
  }
  Bytes written(const std::string& name) const { return readFile(folder.path("out/" + name)); }
};

TEST_F(ConvertTest, ConvertsTheSelectionAndSkipsWhatIsRefused) {
  const Bytes a = addPicture("a.bmp", 1), b = addPicture("b.bmp", 2), z = addPicture("z.bmp", 3);
  addPicture("not selected.bmp");
  folder.write("in/junk.bmp", {'j', 'u', 'n', 'k'});
  set("Dest", folder.drive("pal"));
  start();
  // A picture that is open already is taken from memory, and the box says where all of them go.
  OpenPicture(folder.drive("in/a.bmp"));
  addPicture("a.bmp", 4);
  control<QComboBox>("frmMain", "lstDest")->setEditText(folder.path("out").c_str());
  select({"z.bmp", "b.bmp", "junk.bmp", "a.bmp"});
  messages.meanwhile = [&] {
    EXPECT_TRUE(test::window("frmConvert")->isVisible());
    EXPECT_FALSE(enabled("frmConvert", "cmdYes") || enabled("frmConvert", "cmdNo"));
    EXPECT_EQ(state.PictureFileName, "b.bmp");
  };
  convert("cmdBatch");
  EXPECT_EQ(messages.texts(), Texts{"This file is not a valid bitmap file."});
  EXPECT_EQ(written("a.bmp"), convertedBitmap(a, colours));
  EXPECT_EQ(written("b.bmp"), convertedBitmap(b, colours));
  EXPECT_EQ(written("z.bmp"), convertedBitmap(z, colours));
  EXPECT_FALSE(folder.exists("out/junk.bmp") || folder.exists("out/not selected.bmp"));

  EXPECT_EQ(state.PictureFileName, "");
  EXPECT_FALSE(test::window("frmConvert")->isVisible());
  EXPECT_TRUE(enabled("frmConvert", "cmdYes") && enabled("frmConvert", "cmdNo"));
  for (const char* name : {"cmdOpen", "cmdConvert", "cmdBatch"}) {
    EXPECT_FALSE(enabled("frmMain", name)) << name;
  }
  test::settle();
  EXPECT_EQ(control<QProgressBar>("frmConvert", "Progress1")->value(), 100);
  EXPECT_EQ(control<QProgressBar>("frmConvert", "Progress2")->value(), 0);
}

TEST_F(ConvertTest, AsksWhetherToGoOnAfterAWriteFailure) {
  set("Dest", folder.drive("gone"));
  const auto unwritable = [&](const char* name) {
    return "The file can't be written.\n" + folder.drive("gone/") + name;
  };
  const std::string goOn = "Go on with the remaining pictures?";
  for (const char* name : {"a.bmp", "b.bmp", "c.bmp"}) addPicture(name);
  start();
  select({"a.bmp", "b.bmp", "c.bmp"});
  messages.answers = {Answer::OK, Answer::Yes, Answer::OK, Answer::Yes, Answer::OK};
  convert("cmdBatch");
  EXPECT_EQ(messages.texts(),
            (Texts{unwritable("a.bmp"), goOn, unwritable("b.bmp"), goOn, unwritable("c.bmp")}));
  messages.answers = {Answer::OK, Answer::No};
  select({"a.bmp", "b.bmp", "c.bmp"});
  convert("cmdBatch");
  EXPECT_EQ(messages.texts(), (Texts{unwritable("a.bmp"), goOn}));
  EXPECT_EQ(state.PictureFileName, "");
}

TEST_F(ConvertTest, OneDirectoryUnderTwoNamesIsSaidOnce) {
  std::filesystem::create_directory_symlink("in", folder.path("link"));
  set("Dest", folder.drive("link"));
  const Bytes a = addPicture("a.bmp", 1), b = addPicture("b.bmp", 2);
  start();
  EXPECT_TRUE(messages.texts().empty());
  select({"a.bmp", "b.bmp"});
  convert("cmdBatch");
  messages.expectLast(1, "The source and destination directories must be different.", "Warning!",
                      forms::Icon::Information);
  EXPECT_EQ(readFile(folder.path("in/a.bmp")), a);
  EXPECT_EQ(readFile(folder.path("in/b.bmp")), b);
}

TEST_F(ConvertTest, AsksForEachStandardBitmapInARun) {
  const Bytes c = addPicture("c.bmp");
  Bytes standard = convertedBitmap(c, model::someColours(8));
  standard[6] = 5;  // reserved, and comes through as it is
  for (const char* name : {"in/a.bmp", "in/b.bmp"}) folder.write(name, standard);
  start();
  select({"a.bmp", "b.bmp", "c.bmp"});
  messages.answers = {Answer::Yes, Answer::No};
  convert("cmdBatch");
  EXPECT_EQ(messages.texts().size(), 2u);
  EXPECT_EQ(written("a.bmp"), standard);
  EXPECT_FALSE(folder.exists("out/b.bmp"));
  // The colours of the last bitmap opened are the palette of what follows.
  EXPECT_EQ(written("c.bmp"), convertedBitmap(c, model::someColours(8)));
}

TEST_F(ConvertTest, EnterAndEscapeMeanNoAndNothingElseCloses) {
  addPicture("a.bmp");
  start();
  OpenPicture(folder.drive("in/a.bmp"));
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    select({"a.bmp"});
    test::pressAndThen("frmMain", "cmdConvert", [&] {
      QWidget* dialog = test::window("frmConvert");
      dialog->close();
      EXPECT_TRUE(dialog->isVisible());
      control("frmConvert", "cmdYes")->setFocus();
      QTest::keyClick(control("frmConvert", "cmdYes"), key);
      EXPECT_FALSE(dialog->isVisible());
      if (dialog->isVisible()) press("frmConvert", "cmdNo");
    });
    EXPECT_FALSE(folder.exists("out/a.bmp")) << key;
    EXPECT_EQ(state.PictureFileName, "a.bmp");
    EXPECT_FALSE(enabled("frmMain", "cmdConvert"));
    EXPECT_TRUE(enabled("frmMain", "cmdInfo"));
  }
}

}  // namespace
}  // namespace mill
