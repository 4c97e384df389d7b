#include "platform/up_down.h"

#include <QLineEdit>
#include <QTest>

#include "platform/form.h"
#include "support/windows.h"

namespace mill {
namespace {

class SpinForm final : public forms::Form {
 public:
  SpinForm()
      : Form({.Name = "frmSpin", .Caption = "", .BorderStyle = {}, .Client = {3000, 1500}}) {}

 private:
  forms::Label lblNumber{*this, "lblNumber", "Number:", {0, 300, 600, 285}};
  forms::TextBox txtNumber{*this, "txtNumber", {600, 300, 600, 285}};
  forms::UpDown updNumber{*this, "updNumber", {1200, 300, 240, 285}, txtNumber, 0, 255};
};

forms::Global<SpinForm> frmSpin;

class UpDown : public test::WindowTest {
 protected:
  UpDown() {
    frmSpin->Show();
    test::settle();
  }
  ~UpDown() override { frmSpin->Unload(); }

  static QLineEdit* box() { return test::control<QLineEdit>("frmSpin", "txtNumber"); }
  static QWidget* arrows() { return test::control("frmSpin", "updNumber"); }
  /// The arrow at the top or at the bottom.
  static QWidget* arrow(bool up) { return arrows()->childAt(8, up ? 2 : arrows()->height() - 3); }
};

TEST_F(UpDown, StepsTheNumberOfItsBuddyWithinTheRange) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"7", "8", "6"},   {"0", "1", "0"},       {"255", "255", "254"},
      {"abc", "1", "0"}, {"300", "255", "254"}, {"2.5", "3", "1"}};
  for (const auto& [text, above, below] : cases) {
    for (const bool up : {true, false}) {
      const QString expected = up ? above : below;
      for (const bool byKey : {true, false}) {
        box()->setText(text);
        if (byKey) QTest::keyClick(arrows(), up ? Qt::Key_Up : Qt::Key_Down);
        if (!byKey) QTest::mouseClick(arrow(up), Qt::LeftButton);
        EXPECT_EQ(box()->text(), expected) << text;
        EXPECT_TRUE(arrows()->hasFocus() || byKey);
      }
    }
  }
}

TEST_F(UpDown, IsOneStopOfTheTabKeyNamedAsItsBuddy) {
  box()->setFocus();
  QTest::keyClick(box(), Qt::Key_Tab);
  EXPECT_TRUE(arrows()->hasFocus());
  QTest::keyClick(arrows(), Qt::Key_Tab);
  EXPECT_TRUE(box()->hasFocus());
  EXPECT_EQ(arrows()->accessibleName(), "Number:");
}

TEST_F(UpDown, RepeatsAsLongAsItIsHeld) {
  box()->setText("250");
  QTest::mousePress(arrow(true), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([] { return box()->text() == "255"; }));
  QTest::mouseRelease(arrow(true), Qt::LeftButton);
  box()->setText("9");
  QTest::qWait(400);
  EXPECT_EQ(box()->text(), "9");
}

}  // namespace
}  // namespace mill
