#include "platform/form.h"

#include <QAccessible>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include "platform/application.h"
#include "platform/controls.h"
#include "platform/progress_bar.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::control;
using test::settle;
using test::whenShown;
using test::window;

/// A window that writes down what happens to it.
class ProbeForm : public forms::Form {
 public:
  explicit ProbeForm(const char* name, forms::Border border = forms::Border::FixedSingle,
                     bool controlBox = true)
      : Form({.Name = name,
              .Caption = "a [*] <b>title</b>",
              .BorderStyle = border,
              .Client = {3000, 1500},
              .ControlBox = controlBox}) {}

  std::string log;

 protected:
  void Form_Load() override { log += "load "; }
  void Form_Unload() override { log += "unload "; }
  void Form_Activate() override { log += "activate "; }
};

class MainProbe final : public ProbeForm {
 public:
  MainProbe() : ProbeForm("frmMainProbe") {}
};

class DialogProbe final : public ProbeForm {
 public:
  DialogProbe() : ProbeForm("frmDialogProbe") {}
  std::string pressed;

 private:
  void cmdOK_Click() { pressed += "OK "; }
  void cmdCancel_Click() { Unload(); }

  forms::Label lblName{*this, "lblName", "Name & <b>title</b>:", {0, 0, 1500, 300}};
  forms::TextBox txtName{*this, "txtName", {0, 300, 1500, 300}};
  forms::CommandButton cmdOther{*this, "cmdOther", "Other", {0, 600, 900, 300}, {}};
  forms::CommandButton cmdOK{
      *this, "cmdOK", "OK", {0, 900, 900, 300}, &DialogProbe::cmdOK_Click, forms::Default};
  forms::CommandButton cmdCancel{
      *this,        "cmdCancel", "Cancel", {0, 1200, 900, 300}, &DialogProbe::cmdCancel_Click,
      forms::Cancel};
};

class ToolProbe final : public ProbeForm {
 public:
  ToolProbe() : ProbeForm("frmToolProbe", forms::Border::FixedToolWindow) {}
};

class LockedProbe final : public ProbeForm {
 public:
  LockedProbe() : ProbeForm("frmLockedProbe", forms::Border::FixedSingle, false) {}
};

forms::Global<MainProbe> frmMainProbe;
forms::Global<DialogProbe> frmDialogProbe;
forms::Global<ToolProbe> frmToolProbe;
forms::Global<LockedProbe> frmLockedProbe;

using Forms = test::WindowTest;

TEST_F(Forms, AFormIsLoadedAtFirstUseAndNewAfterUnload) {
  frmToolProbe.Load();
  EXPECT_FALSE(frmToolProbe->Visible());
  EXPECT_EQ(frmToolProbe->log, "load ");
  frmToolProbe->Show();
  frmToolProbe->Hide();
  EXPECT_EQ(frmToolProbe->log, "load activate ");
  ToolProbe& old = *frmToolProbe;
  frmToolProbe->Unload();
  EXPECT_EQ(old.log, "load activate unload ");  // until the event loop is back
  EXPECT_FALSE(frmToolProbe.isLoaded());
  EXPECT_EQ(forms::Forms.Count(), 0);
  EXPECT_EQ(frmToolProbe->log, "load ");
}

TEST_F(Forms, AModalShowReturnsWhenTheWindowIsHiddenOrUnloaded) {
  frmMainProbe->Show();
  int steps = 0;
  whenShown([&] {
    ++steps;
    EXPECT_TRUE(frmDialogProbe->Visible());
    frmDialogProbe->Hide();
  });
  frmDialogProbe->Show(forms::vbModal, *frmMainProbe);
  EXPECT_EQ(steps, 1);
  EXPECT_TRUE(frmDialogProbe.isLoaded());

  frmMainProbe->Hide();  // a hidden owner is no error
  whenShown([&] { QTest::keyClick(window("frmDialogProbe"), Qt::Key_Escape); });
  frmDialogProbe->Show(forms::vbModal, *frmMainProbe);
  EXPECT_FALSE(frmDialogProbe.isLoaded());
  settle();
}

TEST_F(Forms, AModalWindowBlocksTheOthersAlsoWhenItWasOpenBefore) {
  frmMainProbe->Show();
  frmDialogProbe->Show();
  settle();
  whenShown([&] {
    EXPECT_EQ(QApplication::activeModalWidget(), window("frmDialogProbe"));
    EXPECT_EQ(window("frmDialogProbe")->windowHandle()->transientParent(),
              window("frmMainProbe")->windowHandle());
    frmDialogProbe->Hide();
  });
  frmDialogProbe->Show(forms::vbModal, *frmMainProbe);
  EXPECT_EQ(forms::Screen.ActiveForm(), &*frmMainProbe);
}

TEST_F(Forms, AHiddenWindowTakesNoInput) {
  frmDialogProbe->Show();
  frmDialogProbe->Hide();
  auto* button = control<QPushButton>("frmDialogProbe", "cmdOK");
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, {5, 5}, button->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
    QApplication::sendEvent(button, &event);
  }
  EXPECT_EQ(frmDialogProbe->pressed, "");
}

TEST_F(Forms, CloseBoxes) {
  frmMainProbe->Show();
  frmToolProbe->Show();
  window("frmToolProbe")->close();
  EXPECT_TRUE(frmToolProbe.isLoaded() && !frmToolProbe->Visible());

  whenShown([&] { window("frmDialogProbe")->close(); });
  frmDialogProbe->Show(forms::vbModal, *frmMainProbe);
  EXPECT_FALSE(frmDialogProbe.isLoaded());

  frmLockedProbe->Show();
  window("frmLockedProbe")->close();
  EXPECT_TRUE(frmLockedProbe->Visible());
}

TEST_F(Forms, OnlyTheButtonWithTheRoleTakesEnterOrEscape) {
  frmDialogProbe->Show();
  control("frmDialogProbe", "cmdOther")->setFocus();
  QTest::keyClick(control("frmDialogProbe", "cmdOther"), Qt::Key_Return);
  QTest::keyClick(control("frmDialogProbe", "txtName"), Qt::Key_Enter);
  EXPECT_EQ(frmDialogProbe->pressed, "OK OK ");
  QTest::keyClick(control("frmDialogProbe", "txtName"), Qt::Key_Escape);
  EXPECT_FALSE(frmDialogProbe.isLoaded());

  frmToolProbe->Show();
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    QTest::keyClick(window("frmToolProbe"), key);
  }
  EXPECT_TRUE(frmToolProbe->Visible());
}

TEST_F(Forms, ActivationComesAtEachShowAndBetweenOurWindows) {
  frmMainProbe->Show();
  frmToolProbe->Show();
  settle();
  EXPECT_EQ(&*frmToolProbe, forms::Screen.ActiveForm());
  const auto activate = [](const char* form) {
    QEvent event(QEvent::WindowActivate);
    QApplication::sendEvent(window(form), &event);
  };
  frmToolProbe->log.clear();
  activate("frmToolProbe");  // back from another program
  EXPECT_EQ(frmToolProbe->log, "");
  activate("frmMainProbe");
  activate("frmToolProbe");
  EXPECT_EQ(frmToolProbe->log, "activate ");
  frmToolProbe->Show();
  EXPECT_EQ(frmToolProbe->log, "activate activate ");

  whenShown([&] {
    activate("frmToolProbe");  // which the dialog blocks
    EXPECT_EQ(&*frmDialogProbe, forms::Screen.ActiveForm());
    frmDialogProbe->Hide();
  });
  frmDialogProbe->Show(forms::vbModal, *frmMainProbe);
  EXPECT_NE(&*frmDialogProbe, forms::Screen.ActiveForm());
}

TEST_F(Forms, NamesAndTextsArePlain) {
  frmDialogProbe->Show();
  EXPECT_EQ(frmDialogProbe->Caption(), "a [*] <b>title</b>");
  EXPECT_EQ(window("frmDialogProbe")->windowTitle(), QStringLiteral("a [*][*] <b>title</b>"));
  auto* label = control<QLabel>("frmDialogProbe", "lblName");
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  EXPECT_EQ(label->text(), QStringLiteral("Name & <b>title</b>:"));
  EXPECT_EQ(control("frmDialogProbe", "txtName")->accessibleName(), label->text());
  EXPECT_EQ(window("frmDialogProbe")->size(), QSize(200, 100));
  EXPECT_EQ(QApplication::font().pixelSize(), 11);
  EXPECT_EQ(QFontInfo(QApplication::font()).family(), QStringLiteral("Liberation Sans"));
}

TEST_F(Forms, TheHourglassStandsUntilTheEventLoopIsBack) {
  frmMainProbe->Show();
  { const forms::Hourglass hourglass; }
  EXPECT_EQ(frmMainProbe->MousePointer(), forms::vbDefault);
  EXPECT_EQ(window("frmMainProbe")->cursor().shape(), Qt::WaitCursor);
  settle();
  EXPECT_EQ(window("frmMainProbe")->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Forms, TheProgramEndsWithItsMainWindow) {
  whenShown([] {
    EXPECT_TRUE(frmMainProbe->Visible());
    window("frmMainProbe")->close();
  });
  EXPECT_EQ(forms::App.run(frmMainProbe), 0);
}

class BarProbe final : public ProbeForm {
 public:
  BarProbe() : ProbeForm("frmBarProbe") {}
  forms::ProgressBar Progress1{*this, "Progress1", {0, 0, 1500, 300}};
};

forms::Global<BarProbe> frmBarProbe;

/// Counts how often a widget is painted.
class PaintCount final : public QObject {
 public:
  explicit PaintCount(QWidget* widget) { widget->installEventFilter(this); }
  int paintings = 0;

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    paintings += event->type() == QEvent::Paint;
    return false;
  }
};

TEST_F(Forms, ABarIsExactAtOnceAndPaintedNowAndThen) {
  frmBarProbe->Show();
  settle();
  PaintCount count(control("frmBarProbe", "Progress1"));
  for (int run = 0; run < 1000; ++run) {
    for (const int value : {-5, 0, 37, 250}) {
      frmBarProbe->Progress1.setValue(value);
      EXPECT_EQ(frmBarProbe->Progress1.Value(), std::clamp(value, 0, 100));
    }
  }
  frmBarProbe->Progress1.setValue(42);
  EXPECT_GE(count.paintings, 1);
  EXPECT_LE(count.paintings, 100);  // of 4000 changes, however slow the machine
  settle();
  EXPECT_EQ(control("frmBarProbe", "Progress1")->property("value").toInt(), 42);
}

}  // namespace
}  // namespace mill
