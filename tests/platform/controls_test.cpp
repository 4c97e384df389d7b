#include "platform/controls.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QWheelEvent>

#include "platform/combo_box.h"
#include "platform/file_controls.h"
#include "platform/form.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::control;
using test::settle;

/// One of each control that raises events, which are written down.
class ProbeForm final : public forms::Form {
 public:
  ProbeForm()
      : Form({.Name = "frmProbe",
              .Caption = "",
              .BorderStyle = forms::Border::FixedSingle,
              .Client = {6000, 6000}}) {}

  std::string log;
  std::string taken() { return std::exchange(log, {}); }

 private:
  void Form_Load() override {}
  void change() { log += "change "; }
  void click() { log += "click "; }
  void doubleClick() { log += "double "; }

 public:
  forms::ComboBox lstBox{*this, "lstBox", {0, 0, 3000, 300}, &ProbeForm::change, &ProbeForm::click};
  forms::CheckBox chkBox{*this, "chkBox", "&Tick", {0, 300, 1500, 300}, &ProbeForm::click};
  forms::TextBox txtBox{*this, "txtBox", {0, 600, 1500, 300}, &ProbeForm::change};
  forms::FileListBox filBox{*this,
                            "filBox",
                            {0, 900, 3000, 3000},
                            "*.bmp",
                            forms::MultiSelect::Extended,
                            &ProbeForm::click,
                            &ProbeForm::doubleClick};
};

forms::Global<ProbeForm> frmProbe;

class Controls : public test::WindowTest {
 protected:
  Controls() {
    frmProbe->Show();
    settle();
  }
  ~Controls() override { frmProbe->Unload(); }

  QComboBox* box() { return control<QComboBox>("frmProbe", "lstBox"); }
};

TEST_F(Controls, ABoxKeepsWhatIsTypedAndNothingElse) {
  for (const char* entry : {"Z:\\Alpha", "Z:\\Beta"}) frmProbe->lstBox.AddItem(entry);
  EXPECT_EQ(frmProbe->lstBox.Text(), "");
  EXPECT_EQ(frmProbe->taken(), "");

  QTest::keyClicks(box()->lineEdit(), "z:\\al");
  EXPECT_EQ(frmProbe->lstBox.Text(), "z:\\al");
  EXPECT_EQ(frmProbe->taken(), "change change change change change ");
  QTest::keyClick(box()->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(frmProbe->lstBox.ListCount(), 2);

  frmProbe->lstBox.setText("Z:\\Beta");
  frmProbe->lstBox.setText("Z:\\Beta");
  EXPECT_EQ(frmProbe->taken(), "change ");
  // Leaving a box whose text happens to be an entry picks nothing.
  control("frmProbe", "txtBox")->setFocus();
  EXPECT_EQ(frmProbe->taken(), "");
}

TEST_F(Controls, PickingAnEntryIsOneClickAndNoChange) {
  for (const char* entry : {"one", "two", "<b>&three"}) frmProbe->lstBox.AddItem(entry);
  box()->setFocus();
  QTest::keyClick(box(), Qt::Key_Down);
  EXPECT_EQ(frmProbe->lstBox.Text(), "one");
  EXPECT_EQ(frmProbe->taken(), "click ");
  box()->showPopup();
  QTest::keyClick(box()->view(), Qt::Key_End);
  QTest::keyClick(box()->view(), Qt::Key_Return);
  EXPECT_EQ(frmProbe->lstBox.Text(), "<b>&three");
  EXPECT_EQ(frmProbe->taken(), "click ");
}

TEST_F(Controls, TheWheelLeavesAClosedBoxAlone) {
  for (const char* entry : {"one", "two"}) frmProbe->lstBox.AddItem(entry);
  frmProbe->lstBox.setText("one");
  frmProbe->taken();
  box()->setFocus();
  QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(box(), &wheel);
  EXPECT_EQ(frmProbe->lstBox.Text(), "one");
  EXPECT_EQ(frmProbe->taken(), "");
}

TEST_F(Controls, ChangesByCodeRaiseTheirEventOnce) {
  frmProbe->chkBox.setValue(1);
  frmProbe->chkBox.setValue(1);
  EXPECT_EQ(frmProbe->taken(), "click ");
  frmProbe->txtBox.setText("latin \xFC");
  frmProbe->txtBox.setText("latin \xFC");
  EXPECT_EQ(frmProbe->taken(), "change ");
  EXPECT_EQ(frmProbe->txtBox.Text(), "latin \xFC");
}

/// The file list with ten pictures in it.
class FileList : public Controls {
 protected:
  FileList() {
    for (const char* name : {"b.bmp", "A.BMP", "c.bmp", "d.bmp", "e.bmp", "<b>f&.bmp", "g.txt"}) {
      folder.write(name, {1});
    }
    frmProbe->filBox.setPath(folder.path().string());
    settle();
  }

  QListView* view() { return control<QListView>("frmProbe", "filBox"); }
  QPoint at(int row) { return view()->visualRect(view()->model()->index(row, 0)).center(); }
  void click(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers, at(row));
  }
  std::string selected() {
    std::string names;
    for (int i = 0; i < frmProbe->filBox.ListCount(); ++i) {
      if (frmProbe->filBox.Selected(i)) names += frmProbe->filBox.List(i) + " ";
    }
    return names;
  }
};

TEST_F(FileList, ShowsMatchingNamesInOrder) {
  EXPECT_EQ(frmProbe->filBox.Path(), folder.drive());
  ASSERT_EQ(frmProbe->filBox.ListCount(), 6);
  EXPECT_EQ(frmProbe->filBox.List(0), "<b>f&.bmp");
  EXPECT_EQ(frmProbe->filBox.List(1), "A.BMP");
  EXPECT_EQ(frmProbe->filBox.List(2), "b.bmp");
  EXPECT_EQ(frmProbe->filBox.FileName(), "");
  view()->setFocus();  // coming by Tab chooses nothing
  EXPECT_EQ(frmProbe->filBox.FileName(), "");
  EXPECT_EQ(frmProbe->taken(), "");
}

TEST_F(FileList, EachGestureIsOneClick) {
  click(1);
  EXPECT_EQ(frmProbe->taken(), "click ");
  click(1);  // the same file once more
  EXPECT_EQ(frmProbe->taken(), "click ");
  EXPECT_EQ(frmProbe->filBox.FileName(), "A.BMP");
  click(3, Qt::ShiftModifier);
  EXPECT_EQ(frmProbe->taken(), "click ");
  EXPECT_EQ(selected(), "A.BMP b.bmp c.bmp ");
  click(2, Qt::ControlModifier);
  EXPECT_EQ(frmProbe->taken(), "click ");
  EXPECT_EQ(selected(), "A.BMP c.bmp ");

  QTest::mousePress(view()->viewport(), Qt::LeftButton, {}, at(0));
  for (int row = 1; row <= 4; ++row) QTest::mouseMove(view()->viewport(), at(row));
  EXPECT_EQ(frmProbe->taken(), "");
  QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, at(4));
  EXPECT_EQ(frmProbe->taken(), "click ");

  QTest::mouseClick(view()->viewport(), Qt::RightButton, {}, at(2));
  EXPECT_EQ(frmProbe->taken(), "");
  click(2);
  frmProbe->taken();
  QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, at(2));
  QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, at(2));
  EXPECT_EQ(frmProbe->taken(), "double ");
}

TEST_F(FileList, WhatChangesTheSelectionAlwaysTells) {
  const QPoint below(40, view()->viewport()->height() - 5);
  click(1);
  frmProbe->taken();
  QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, below);
  EXPECT_EQ(selected(), "");
  EXPECT_EQ(frmProbe->taken(), "click ");
  QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, below);
  EXPECT_EQ(frmProbe->taken(), "");

  click(1);
  frmProbe->taken();
  for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mouseClick(view()->viewport(), other, {}, at(3));
    QTest::mouseClick(view()->viewport(), other, {}, below);
  }
  EXPECT_EQ(selected(), "A.BMP ");
  EXPECT_EQ(frmProbe->taken(), "");

  QTest::mousePress(view()->viewport(), Qt::LeftButton, {}, below);
  for (int row = 5; row >= 3; --row) QTest::mouseMove(view()->viewport(), at(row));
  QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, at(3));
  EXPECT_EQ(frmProbe->taken(), "click ");
}

TEST_F(FileList, TheChosenNameIsOneThatIsSelected) {
  for (const char* name : {"b.bmp", "A.BMP", "c.bmp", "d.bmp", "e.bmp"}) {
    std::filesystem::remove(folder.path(name));
  }
  frmProbe->filBox.setPath(folder.drive());
  QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);  // one file, and no current one
  EXPECT_EQ(frmProbe->filBox.FileName(), "<b>f&.bmp");
  click(0, Qt::ControlModifier);
  EXPECT_EQ(frmProbe->filBox.FileName(), "");
}

TEST_F(FileList, KeysThatChangeSomethingAreOneClick) {
  QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(frmProbe->taken(), "click ");
  QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(frmProbe->taken(), "");
  QTest::keyClick(view(), Qt::Key_Home);
  EXPECT_EQ(frmProbe->taken(), "click ");
  EXPECT_EQ(selected(), "<b>f&.bmp ");
  QTest::keyClick(view(), Qt::Key_Up);
  EXPECT_EQ(frmProbe->taken(), "");
  QTest::keyClick(view(), Qt::Key_Down);
  EXPECT_EQ(frmProbe->taken(), "click ");
}

TEST_F(FileList, ChangesByCodeAreNone) {
  click(1);
  frmProbe->taken();
  frmProbe->filBox.setPath(folder.drive());
  EXPECT_EQ(selected(), "");
  frmProbe->filBox.setPath(folder.drive("nowhere"));
  EXPECT_EQ(frmProbe->filBox.ListCount(), 0);
  EXPECT_EQ(frmProbe->filBox.FileName(), "");
  EXPECT_EQ(frmProbe->taken(), "");
}

}  // namespace
}  // namespace mill
