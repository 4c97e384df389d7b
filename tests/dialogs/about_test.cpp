#include <QTest>

#include "dialogs/frm_about.h"
#include "dialogs/frm_splash.h"
#include "platform/application.h"
#include "platform/paths.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::control;
using test::press;

/// Programs are looked for in the test's own folder, where there is none at first.
class About : public test::WindowTest {
 protected:
  About() { ::setenv("PATH", folder.path().c_str(), 1); }
  ~About() override { ::setenv("PATH", path_.c_str(), 1); }

  /// Puts a viewer there that adds the path it is given to the file "seen".
  void installViewer() const {
    const std::string script =
        "#!/bin/sh\necho \"$#:$1\" >> '" + folder.path("seen").string() + "'";
    folder.write("xdg-open", test::Bytes(script.begin(), script.end()));
    std::filesystem::permissions(folder.path("xdg-open"), std::filesystem::perms::owner_all);
  }
  std::string seen() const {
    const test::Bytes bytes = test::readFile(folder.path("seen"));
    return std::string(bytes.begin(), bytes.end());
  }

 private:
  const std::string path_ = ::getenv("PATH");
};

TEST_F(About, OpensTheReadMeFileOncePerClickAndStaysOpen) {
  installViewer();
  const std::string readMe = forms::nativePath(forms::join(forms::App.Path(), "readme.txt"));
  frmAbout->Show();
  press("frmAbout", "cmdReadme");
  press("frmAbout", "cmdReadme");
  EXPECT_TRUE(QTest::qWaitFor([&] { return seen() == "1:" + readMe + "\n1:" + readMe + "\n"; }))
      << seen();
  EXPECT_TRUE(frmAbout->Visible());
}

TEST_F(About, SaysWhenThereIsNoViewer) {
  frmAbout->Show();
  press("frmAbout", "cmdReadme");
  messages.expectLast(1, "The read-me file can't be opened.", "Warning!", forms::Icon::Critical);
}

TEST_F(About, ClosesByItsButtonAndByNoKey) {
  frmAbout->Show();
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    QTest::keyClick(test::window("frmAbout"), key);
    EXPECT_TRUE(frmAbout.isLoaded());
  }
  press("frmAbout", "cmdOK");
  EXPECT_FALSE(frmAbout.isLoaded());
}

TEST_F(About, TheSplashWindowClosesByItsButtonAndItsFrameOnly) {
  frmSplash->Show();
  QWidget* frame = control("frmSplash", "Frame1");
  for (const char* name : {"lblCompanyProduct", "imgLogo"}) {
    QTest::mouseClick(control("frmSplash", name), Qt::LeftButton);
    EXPECT_TRUE(frmSplash.isLoaded()) << name;
  }
  QTest::keyClick(test::window("frmSplash"), Qt::Key_Escape);
  test::window("frmSplash")->close();
  EXPECT_TRUE(frmSplash.isLoaded());
  QTest::mouseClick(frame, Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_FALSE(frmSplash.isLoaded());

  frmSplash->Show();
  press("frmSplash", "cmdOK");
  EXPECT_FALSE(frmSplash.isLoaded());
}

TEST_F(About, TheSplashWindowShowsThePicture) {
  frmSplash->Show();
  const QImage shown = test::painted(control("frmSplash", "imgLogo"));
  const QImage logo = QImage(QStringLiteral(":/logo.png"));
  ASSERT_FALSE(logo.isNull());
  const QImage wanted = logo.scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  const QPoint places[] = {{10, 10}, {60, 80}, {110, 150}};
  for (const QPoint& place : places) {
    const QColor a = shown.pixelColor(place);
    const QColor b = wanted.pixelColor(place);
    EXPECT_NEAR(a.red(), b.red(), 24) << place.x();
    EXPECT_NEAR(a.green(), b.green(), 24) << place.x();
  }
}

}  // namespace
}  // namespace mill
