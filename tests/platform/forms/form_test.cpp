#include "platform/forms/form.h"

#include <QTest>
#include <QWindow>

#include "platform/forms/combo_box.h"
#include "platform/forms/dir_tree.h"
#include "platform/forms/file_list.h"
#include "platform/forms/swatches.h"
#include "support/windows.h"

namespace mill::test {
namespace {

using Forms = WindowTest;
using Controls = WindowTest;

/// A window that writes down what happens to it.
struct Probe : forms::Form {
  Probe() : Form({.Name = "", .Caption = "[*]", .Client = {3000, 3000}}) {}

  void Form_Load() override { log += "load "; }
  void Form_Unload() override { log += "unload "; }
  void Form_Activate() override { log += "activate "; }
  std::string taken() { return std::exchange(log, {}); }

  std::string log;
};
forms::Global<Probe> mainForm, dialog;

TEST_F(Forms, AreLoadedAtFirstUseAndNewAfterUnload) {
  dialog->showMinimized();
  dialog->show();
  EXPECT_FALSE(dialog->isMinimized());
  const QPointer old(&*dialog);
  EXPECT_EQ(old->windowHandle()->title(), "[*]");
  dialog->Unload();
  EXPECT_EQ(old->taken(), "load activate activate unload ");  // exists until the event loop is back
  EXPECT_EQ(dialog->taken(), "load ");
  settle();
  EXPECT_FALSE(old);
}

TEST_F(Forms, AreActivatedByShowAndByOtherWindowsButNotBehindAModalOne) {
  Probe other;
  for (forms::Form* form : {&*mainForm, &*mainForm, &other}) {
    form->show();
    settle();
  }
  QEvent activation(QEvent::WindowActivate);
  QApplication::sendEvent(&other, &activation);  // back from another program
  QApplication::sendEvent(&*mainForm, &activation);
  EXPECT_EQ(mainForm->taken() + other.taken(), "load activate activate activate activate ");
  const auto act = [&] {
    EXPECT_EQ(dialog->windowHandle()->transientParent(), mainForm->windowHandle());
    QApplication::sendEvent(&other, &activation);
    other.close();
    dialog->hide();
  };
  inModal([] { dialog->showModal(); }, act);
  EXPECT_EQ(mainForm->taken() + other.taken(), "activate ");
}

TEST_F(Forms, SendEnterToTheFocusedOrDefaultButtonAndEscapeToTheCancelButton) {
  for (const bool hasRoles : {true, false}) {
    Probe form;
    const auto note = [&](const char* event) { return [&, event] { form.log += event; }; };
    auto* text = form.lineEdit("", {}, form.label("", "Name:", {}));
    auto* other = form.button("", "Other", {}, note("other "));
    form.button("", "OK", {}, note("OK "), hasRoles ? forms::Default : forms::Plain);
    form.button("", "Cancel", {}, note("cancel "), hasRoles ? forms::Cancel : forms::Plain);
    form.load();
    form.show();
    QTest::keyClick(text, Qt::Key_Return);
    other->setFocus();
    QTest::keyClick(other, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(other, Qt::Key_Return, Qt::ShiftModifier);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QApplication::sendEvent(other, &repeated);
    QTest::keyClick(other, Qt::Key_Escape);
    EXPECT_EQ(form.taken(), hasRoles ? "load activate OK other cancel " : "load activate other ");
    EXPECT_TRUE(form.isVisible());
  }
}

TEST_F(Controls, BoxReportsEachChangeOnceAndAPickAsAClick) {
  std::string log;
  forms::ComboBox box(
      nullptr, [&] { log += "change "; }, [&] { log += "click "; });
  for (const char* entry : {"Alpha", "Al"}) box.AddItem(entry);
  box.show();
  settle();
  QTest::keyClicks(box.lineEdit(), "Al");
  QTest::keyClick(box.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(box.Text() + std::exchange(log, {}), "Alchange change ");
  EXPECT_EQ(box.count(), 2);
  for (int i = 0; i < 2; ++i) box.setText("Alpha");
  QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(box.Text() + std::exchange(log, {}), "Alphachange ");
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(box.Text() + log, "Alclick ");
}

TEST_F(Controls, FileListReportsEachGestureOnce) {
  for (const char* name : {"b", "A", "\xFC"}) folder.write(name, {});
  std::string log;
  forms::FileList list(nullptr, "*", QListView::ExtendedSelection, [&] { log += "click "; });
  list.setPath(folder.drive());
  list.show();
  QWidget* area = list.viewport();
  const auto at = [&](int row) { return list.visualRect(list.model()->index(row, 0)).center(); };
  const std::pair<std::function<void()>, const char*> steps[] = {
      {[&] { QTest::mouseClick(area, Qt::LeftButton, {}, at(1)); }, "click b|b"},
      {[&] { QTest::mouseClick(area, Qt::LeftButton, {}, at(1)); }, "click b|b"},
      {[&] { QTest::mouseClick(area, Qt::RightButton, {}, at(2)); }, "b|b"},
      {[&] { QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier); }, "click Ab\xFC|b"},
      {[&] { QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier); }, "Ab\xFC|b"},
      {[&] { QTest::mouseClick(area, Qt::LeftButton, {}, at(2) + QPoint(0, 40)); }, "click |"},
      {[&] { QTest::mousePress(area, Qt::LeftButton, {}, at(0)); }, "A|A"},
      {[&] { QTest::mouseMove(area, at(2)); }, "Ab\xFC|\xFC"},
      {[&] { QTest::mouseRelease(area, Qt::LeftButton, {}, at(2)); }, "click Ab\xFC|\xFC"},
  };
  for (const auto& [act, expected] : steps) {
    act();
    for (const std::string& name : list.selectedNames()) log += name;
    EXPECT_EQ(std::exchange(log, {}) + "|" + list.FileName(), expected);
  }
}

TEST_F(Controls, TreeShowsNewDirectoriesAndOpensNoneByTheStarKey) {
  forms::DirTree tree(nullptr);
  tree.setPath(folder.drive());
  folder.makeFolder("new/below");
  tree.setPath(folder.drive());
  for (const auto key : {Qt::Key_Down, Qt::Key_Asterisk}) QTest::keyClick(&tree, key);
  EXPECT_EQ(tree.Path(), folder.drive("new"));
  EXPECT_FALSE(tree.isExpanded(tree.currentIndex()));
}

TEST_F(Controls, SwatchesMarkTheCurrentColour) {
  forms::Swatches view(nullptr, [](int) {});
  for (const ColourEntry background : {ColourEntry{255, 255, 255}, ColourEntry{}}) {
    ColourTable colours;
    colours.fill(background);
    view.setColours(colours);
    view.setCurrent(91);
    const QImage before = painted(&view);
    view.setCurrent(92);
    EXPECT_NE(before, painted(&view));
  }
}

}  // namespace
}  // namespace mill::test
