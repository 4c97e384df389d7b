#include "mainwindow/frm_options.h"

#include "picture/program_state.h"
#include "support/windows.h"

namespace mill::test {
namespace {

using Options = WindowTest;

TEST_F(Options, StoresAtOKAndAtApplyAndNotAtCancel) {
  const std::string here = folder.drive(), old = here + "\\old.pal";
  state.SourceDir = "Z:\\HERE";
  state.DestDir = here;
  state.DefaultPalette = old;
  const auto stored = [] { return Texts{state.SourceDir, state.DestDir, state.DefaultPalette}; };
  const auto confirm = [&](const char* button, QMessageBox::StandardButton answer) {
    type("frmOptions", "txtSource", here + "\\");  // comes back without the backslash
    messages.answers = {QMessageBox::Ok, answer};  // browsing asks as well
    pressAndThen("frmOptions", "cmdSourceBrowse", [] { press("frmBrowse", "OKButton"); });
    press("frmOptions", button);
    EXPECT_EQ(messages.texts(), Texts(2,
                                      "The source and destination directories must be different.\n"
                                      "Are you sure you want to continue?"));
  };
  frmOptions->show();
  EXPECT_FALSE(isEnabled("frmOptions", "cmdApply"));
  type("frmOptions", "txtDest", "Z:\\cancelled");
  press("frmOptions", "cmdCancel");
  frmOptions->show();
  pressAndThen("frmOptions", "cmdPalBrowse", [] { press("frmFileBrowse", "cmdOK"); });  // no name
  confirm("cmdOK", QMessageBox::Cancel);  // brings the directories back, and the window stays
  EXPECT_EQ(stored(), (Texts{"Z:\\HERE", here, old}));
  confirm("cmdApply", QMessageBox::Cancel);  // but stores the palette
  EXPECT_EQ(stored(), (Texts{"Z:\\HERE", here, here + "\\"}));
  type("frmOptions", "txtDest", "Z:\\");
  pressAndThen("frmOptions", "cmdDestBrowse", [] { press("frmBrowse", "OKButton"); });
  press("frmOptions", "cmdApply");
  EXPECT_EQ(stored(), (Texts{"Z:\\HERE", "Z:\\", here + "\\"}));
  type("frmOptions", "txtSource", "Z:\\last");
  press("frmOptions", "cmdOK");
  EXPECT_EQ(stored(), (Texts{"Z:\\last", "Z:\\", here + "\\"}));
  EXPECT_FALSE(frmOptions.isLoaded());
}

}  // namespace
}  // namespace mill::test
