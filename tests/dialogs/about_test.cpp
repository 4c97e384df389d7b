#include <QTest>

#include "dialogs/frm_about.h"
#include "dialogs/frm_splash.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::control;
using test::press;
using About = test::WindowTest;

TEST_F(About, SaysWhereNoProgramOpensTheReadMeFileAndStays) {
  const std::string path = ::getenv("PATH");
  ::setenv("PATH", folder.path().c_str(), 1);
  frmAbout->Show();
  press("frmAbout", "cmdReadme");
  messages.expectLast(1, "The read-me file can't be opened.", "Warning!", forms::Icon::Critical);
  EXPECT_TRUE(frmAbout->Visible());
  ::setenv("PATH", path.c_str(), 1);
}

TEST_F(About, TheSplashWindowShowsThePictureAndClosesByItsButtonAndItsFrameOnly) {
  frmSplash->Show();
  const QImage shown = test::painted(control("frmSplash", "imgLogo"));
  const QImage wanted = QImage(QStringLiteral(":/logo.png"))
                            .scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  ASSERT_FALSE(wanted.isNull());
  for (const QPoint place : {QPoint(10, 10), QPoint(60, 80), QPoint(110, 150)}) {
    EXPECT_NEAR(shown.pixelColor(place).red(), wanted.pixelColor(place).red(), 24);
    EXPECT_NEAR(shown.pixelColor(place).green(), wanted.pixelColor(place).green(), 24);
  }
  for (const char* name : {"lblCompanyProduct", "imgLogo"}) {
    QTest::mouseClick(control("frmSplash", name), Qt::LeftButton);
    EXPECT_TRUE(frmSplash.isLoaded()) << name;
  }
  QTest::keyClick(test::window("frmSplash"), Qt::Key_Escape);
  test::window("frmSplash")->close();
  EXPECT_TRUE(frmSplash.isLoaded());
  QTest::mouseClick(control("frmSplash", "Frame1"), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_FALSE(frmSplash.isLoaded());

  frmSplash->Show();
  press("frmSplash", "cmdOK");
  EXPECT_FALSE(frmSplash.isLoaded());
}

}  // namespace
}  // namespace mill
