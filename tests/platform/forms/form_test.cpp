#include "platform/forms/form.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include "platform/forms/application.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/controls.h"
#include "platform/forms/file_controls.h"
#include "platform/forms/progress_bar.h"
#include "platform/forms/swatch_grid.h"
#include "platform/forms/up_down.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Border;
using test::control;
using test::settle;
using test::whenShown;
using test::window;

/// A window of controls that writes down what happens to it.
class Probe : public forms::Form {
 public:
  Probe(const char* name, Border border)
      : Form({.Name = name,
              .Caption = "a [*] <b>title</b>",
              .BorderStyle = border,
              .Client = {6000, 6000}}) {}

  std::string taken() { return std::exchange(log, {}); }

 private:
  void Form_Load() override { log += "load "; }
  void Form_Unload() override { log += "unload "; }
  void Form_Activate() override { log += "activate "; }
  void change() { log += "change "; }
  void click() { log += "click "; }
  void doubleClick() { log += "double "; }
  void ok() { log += "OK "; }
  void cancel() { Unload(); }

  std::string log;

 public:
  forms::Label label{*this, "label", "Name & <b>title</b>:", {0, 0, 1500, 300}};
  forms::TextBox text{*this, "text", {0, 300, 1500, 300}, &Probe::change};
  forms::UpDown arrows{*this, "arrows", {1500, 300, 240, 285}, text, 0, 255};
  forms::ComboBox box{*this, "box", {0, 600, 3000, 300}, &Probe::change, &Probe::click};
  forms::DirListBox tree{*this, "tree", {3000, 0, 3000, 3000}, &Probe::change};
  forms::FileListBox files{*this,
                           "files",
                           {0, 900, 3000, 3000},
                           "*",
                           forms::MultiSelect::Extended,
                           &Probe::click,
                           &Probe::doubleClick};
  forms::ProgressBar bar{*this, "bar", {3000, 3000, 1500, 300}};
  forms::SwatchGrid grid{*this, "grid", 3000, 3600, 120};
  forms::CommandButton other{*this, "other", "Other", {0, 4200, 900, 300}, &Probe::click};
  forms::CommandButton okButton{*this,      "okButton",    "OK", {0, 4500, 900, 300},
                                &Probe::ok, forms::Default};
  forms::CommandButton cancelButton{*this,          "cancelButton", "Cancel", {0, 4800, 900, 300},
                                    &Probe::cancel, forms::Cancel};
};

struct Main final : Probe {
  Main() : Probe("main", Border::FixedSingle) {}
};
struct Dialog final : Probe {
  Dialog() : Probe("dialog", Border::FixedSingle) {}
};
struct Tool final : Probe {
  Tool() : Probe("tool", Border::FixedToolWindow) {}
};
forms::Global<Main> mainForm;
forms::Global<Dialog> dialog;
forms::Global<Tool> tool;

class Forms : public test::WindowTest {
 protected:
  Forms() {
    mainForm->Show();
    settle();
    mainForm->taken();
  }
  static void showModal(std::function<void()> act) {
    whenShown(std::move(act));
    dialog->Show(forms::vbModal, *mainForm);
  }
};

TEST_F(Forms, AFormIsLoadedAtFirstUseAndNewAfterUnload) {
  tool.Load();
  EXPECT_FALSE(tool->Visible());
  tool->Show();
  window("tool")->close();  // the close box of a tool window only hides it
  EXPECT_TRUE(tool.isLoaded() && !tool->Visible());
  Tool& old = *tool;
  tool->Unload();
  EXPECT_EQ(old.taken(), "load activate unload ");  // is there until the event loop is back
  EXPECT_FALSE(tool.isLoaded());
  EXPECT_EQ(tool->taken(), "load ");
}

TEST_F(Forms, AModalShowBlocksTheOthersUntilTheWindowIsHiddenOrUnloaded) {
  dialog->Show();  // being open already makes no difference
  settle();
  bool shown = false;
  showModal([&] {
    shown = dialog->Visible();
    EXPECT_EQ(QApplication::activeModalWidget(), window("dialog"));
    EXPECT_EQ(window("dialog")->windowHandle()->transientParent(), window("main")->windowHandle());
    dialog->Hide();
  });
  EXPECT_TRUE(shown && dialog.isLoaded());
  EXPECT_EQ(forms::Screen.ActiveForm(), &*mainForm);

  mainForm->Hide();  // a hidden owner is no error
  showModal([] { QTest::keyClick(window("dialog"), Qt::Key_Escape); });
  EXPECT_FALSE(dialog.isLoaded());
}

TEST_F(Forms, AHiddenWindowTakesNoInput) {
  mainForm->Hide();
  auto* button = control<QPushButton>("main", "okButton");
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, {5, 5}, button->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
    QApplication::sendEvent(button, &event);
  }
  EXPECT_EQ(mainForm->taken(), "");
}

TEST_F(Forms, EnterAndEscapeGoToTheButtonsWithTheRolesOrEnterToTheOneWithTheFocus) {
  QTest::keyClick(control("main", "text"), Qt::Key_Enter);
  QTest::keyClick(control("main", "text"), Qt::Key_Enter, Qt::AltModifier);
  control("main", "other")->setFocus();
  QTest::keyClick(control("main", "other"), Qt::Key_Return);
  EXPECT_EQ(mainForm->taken(), "OK click ");
  QTest::keyClick(control("main", "other"), Qt::Key_Escape);
  EXPECT_FALSE(mainForm.isLoaded());
}

TEST_F(Forms, ActivationComesAtEachShowAndBetweenOurWindows) {
  const auto activate = [](const char* form) {
    QEvent event(QEvent::WindowActivate);
    QApplication::sendEvent(window(form), &event);
  };
  tool->Show();
  settle();
  EXPECT_EQ(&*tool, forms::Screen.ActiveForm());
  tool->taken();
  activate("tool");  // back from another program
  EXPECT_EQ(tool->taken(), "");
  activate("main");
  activate("tool");
  EXPECT_EQ(tool->taken(), "activate ");
  tool->Show();
  EXPECT_EQ(tool->taken(), "activate ");
  showModal([&] {
    activate("tool");  // which the dialog blocks
    EXPECT_EQ(&*dialog, forms::Screen.ActiveForm());
    dialog->Hide();
  });
  EXPECT_NE(&*dialog, forms::Screen.ActiveForm());
}

TEST_F(Forms, NamesAndTextsArePlain) {
  EXPECT_EQ(mainForm->Caption(), "a [*] <b>title</b>");
  EXPECT_EQ(window("main")->windowTitle(), "a [*][*] <b>title</b>");
  const auto* label = control<QLabel>("main", "label");
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  EXPECT_EQ(label->text(), "Name & <b>title</b>:");
  EXPECT_EQ(control("main", "text")->accessibleName(), label->text());
  EXPECT_EQ(QFontInfo(QApplication::font()).family(), "Liberation Sans");
  EXPECT_EQ(QApplication::font().pixelSize(), 11);
}

TEST_F(Forms, TheHourglassStandsUntilTheEventLoopIsBack) {
  { const forms::Hourglass hourglass; }
  EXPECT_EQ(mainForm->MousePointer(), forms::vbDefault);
  EXPECT_EQ(window("main")->cursor().shape(), Qt::WaitCursor);
  settle();
  EXPECT_EQ(window("main")->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Forms, ABoxTellsOfEachChangeOnceAndOfAPickAsAClick) {
  for (const char* entry : {"Z:\\Alpha", "Z:\\Beta"}) mainForm->box.AddItem(entry);
  EXPECT_EQ(mainForm->box.Text() + mainForm->taken(), "");
  auto* box = control<QComboBox>("main", "box");
  QTest::keyClicks(box->lineEdit(), "z:\\");
  EXPECT_EQ(mainForm->taken(), "change change change ");
  QTest::keyClick(box->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(mainForm->taken(), "OK ");
  EXPECT_EQ(mainForm->box.ListCount(), 2);
  for (int i = 0; i < 2; ++i) mainForm->box.setText("Z:\\Alpha");
  EXPECT_EQ(mainForm->taken(), "change ");
  // Typing the text of an entry and leaving picks nothing, nor does the wheel over a closed box.
  box->lineEdit()->selectAll();
  QTest::keyClicks(box->lineEdit(), "Z:\\Beta");
  mainForm->taken();
  for (const char* next : {"box", "text", "box"}) control("main", next)->setFocus();
  EXPECT_EQ(mainForm->taken(), "");
  mainForm->box.setText("Z:\\Alpha");
  mainForm->taken();
  QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(box, &wheel);
  EXPECT_EQ(mainForm->box.Text() + mainForm->taken(), "Z:\\Alpha");
  QTest::keyClick(box, Qt::Key_Down);
  EXPECT_EQ(mainForm->box.Text() + mainForm->taken(), "Z:\\Betaclick ");
  for (int i = 0; i < 2; ++i) mainForm->text.setText("latin \xFC");
  EXPECT_EQ(mainForm->taken(), "change ");
  EXPECT_EQ(mainForm->text.Text(), "latin \xFC");
}

TEST_F(Forms, EachGestureInAFileListIsOneClick) {
  for (const char* name : {"b", "A", "\xFC", "c", "<"}) folder.write(name, {1});
  mainForm->files.setPath(folder.drive());
  auto* list = control<QListView>("main", "files");
  QWidget* area = list->viewport();
  const QPoint below(40, area->height() - 5);
  const auto at = [&](int row) { return list->visualRect(list->model()->index(row, 0)).center(); };
  const auto click = [&](int row, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(area, Qt::LeftButton, keys, at(row));
  };
  const auto drag = [&](QPoint from, int to) {
    QTest::mousePress(area, Qt::LeftButton, {}, from);
    for (const int row : {(to + 1) / 2, to}) QTest::mouseMove(area, at(row));
    EXPECT_EQ(mainForm->taken(), "");
    QTest::mouseRelease(area, Qt::LeftButton, {}, at(to));
  };
  const auto doubleClick = [&](int row) {
    QTest::mouseDClick(area, Qt::LeftButton, {}, at(row));
    QTest::mouseRelease(area, Qt::LeftButton, {}, at(row));
  };
  const auto all = [&] { QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier); };
  struct Step {
    std::function<void()> act;
    const char *events, *selected, *chosen;
  };
  const Step steps[] = {
      {[&] { list->setFocus(); }, "", "", ""},
      {[&] { QTest::keyClick(list, Qt::Key_Down); }, "click ", "<", "<"},
      {all, "click ", "<Abc\xFC", "<"},
      {all, "", "<Abc\xFC", "<"},
      {[&] { QTest::keyClick(list, Qt::Key_Down); }, "click ", "A", "A"},
      {[&] { QTest::keyClick(list, Qt::Key_Home); }, "click ", "<", "<"},
      {[&] { QTest::keyClick(list, Qt::Key_Up); }, "", "<", "<"},
      {[&] { click(1); }, "click ", "A", "A"},
      {[&] { click(1); }, "click ", "A", "A"},
      {[&] { click(3, Qt::ShiftModifier); }, "click ", "Abc", "c"},
      {[&] { click(2, Qt::ControlModifier); }, "click ", "Ac", "b"},
      {[&] { drag(at(0), 4); }, "click ", "<Abc\xFC", "\xFC"},
      {[&] { click(2); }, "click ", "b", "b"},
      {[&] { QTest::mouseClick(area, Qt::RightButton, {}, at(3)); }, "", "b", "b"},
      {[&] { QTest::mouseClick(area, Qt::MiddleButton, {}, below); }, "", "b", "b"},
      {[&] { doubleClick(2); }, "double ", "b", "b"},
      {[&] { click(2, Qt::ControlModifier); }, "click ", "", ""},
      {[&] { click(1); }, "click ", "A", "A"},
      {[&] { QTest::mouseClick(area, Qt::LeftButton, {}, below); }, "click ", "", ""},
      {[&] { QTest::mouseClick(area, Qt::LeftButton, {}, below); }, "click ", "", ""},
      {[&] { drag(below, 3); }, "click ", "c\xFC", "c"},
      {[&] { mainForm->files.setPath(folder.drive()); }, "", "", ""},
  };
  for (const Step& step : steps) {
    SCOPED_TRACE(&step - steps);
    step.act();
    EXPECT_EQ(mainForm->taken(), step.events);
    std::string selected;
    for (int i = 0; i < mainForm->files.ListCount(); ++i) {
      if (mainForm->files.Selected(i)) selected += mainForm->files.List(i);
    }
    EXPECT_EQ(selected, step.selected);
    EXPECT_EQ(mainForm->files.FileName(), step.chosen);
  }
}

TEST_F(Forms, ATreeShowsADirectoryThatHasComeAndTakesPathsOfAnyForm) {
  mainForm->tree.setPath(folder.drive());
  folder.makeFolder("new");
  mainForm->tree.setPath(folder.drive());
  EXPECT_EQ(mainForm->taken(), "change ");
  QTest::keyClick(control("main", "tree"), Qt::Key_Down);
  EXPECT_EQ(mainForm->taken(), "change ");
  EXPECT_EQ(mainForm->tree.Path(), folder.drive("new"));
  // A link that leads back has no end.
  std::filesystem::create_directory_symlink(".", folder.path("new/loop"));
  QTest::keyClick(control("main", "tree"), Qt::Key_Asterisk);
  EXPECT_EQ(mainForm->tree.Path(), folder.drive("new"));
  mainForm->tree.setPath("z:" + folder.path("new/..").string());
  EXPECT_EQ(mainForm->tree.Path(), folder.drive());
}

TEST_F(Forms, AnArrowStepsAsLongAsItIsHeld) {
  auto* text = control<QLineEdit>("main", "text");
  QWidget* arrows = control("main", "arrows");
  text->setText("300");
  QTest::mouseClick(arrows->childAt(8, arrows->height() - 3), Qt::LeftButton);
  EXPECT_EQ(text->text(), "254");
  text->setText("250");
  QTest::mousePress(arrows->childAt(8, 2), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return text->text() == "255"; }));
  QTest::mouseRelease(arrows->childAt(8, 2), Qt::LeftButton);
}

/// Counts how often a control is painted.
class PaintCount final : public QObject {
 public:
  explicit PaintCount(const char* name) { control("main", name)->installEventFilter(this); }
  int taken() { return std::exchange(paintings_, 0); }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    paintings_ += event->type() == QEvent::Paint;
    return false;
  }

  int paintings_ = 0;
};

TEST_F(Forms, ABarIsExactAtOnceAndPaintedNowAndThen) {
  PaintCount count("bar");
  for (int run = 0; run < 1000; ++run) {
    for (const int value : {-5, 0, 37, 250}) {
      mainForm->bar.setValue(value);
      EXPECT_EQ(mainForm->bar.Value(), std::clamp(value, 0, 100));
    }
  }
  mainForm->bar.setValue(42);
  const int paintings = count.taken();
  EXPECT_GE(paintings, 1);
  EXPECT_LE(paintings, 100);  // of 4000 changes, however slow the machine
  settle();
  EXPECT_EQ(control("main", "bar")->property("value").toInt(), 42);
}

TEST_F(Forms, AllSwatchesTogetherArePaintedOnceWheneverTheyChange) {
  PaintCount count("grid");
  const std::pair<std::uint8_t, int> steps[] = {{1, 1}, {2, 1}, {2, 0}, {3, 1}};
  for (const auto& [red, paintings] : steps) {
    for (int i = 0; i < 256; ++i) mainForm->grid.setBackColor(i, red, 8, 9);
    settle();
    EXPECT_EQ(count.taken(), paintings);
  }
}

}  // namespace
}  // namespace mill
