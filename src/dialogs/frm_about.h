#pragma once

#include "platform/forms/form.h"

namespace mill {

/// Shows the program's name, version and authors, and opens the read-me file. The main window stays
/// usable.
class AboutForm final : public forms::Form {
 public:
  AboutForm();

 private:
  void cmdReadme_Click();

  // clang-format off
  forms::Frame* Frame1     = frame("Frame1", "",                                                                                  { 120,  120, 6495, 3000});
  QLabel*       Label1     = Frame1->label    ("Label1",     "Raster Mill",                                                       { 720,  180, 2760,  570}, {.Points = 24});
  QLabel*       lblVersion = Frame1->autoLabel("lblVersion", "Version " MILL_VERSION,                                             {3720,  360, 1455,  330}, {.Points = 13.5});
  QLabel*       Label2     = Frame1->label    ("Label2",     "This is the public Beta release of the bitmap conversion utility for Ironveil bitmaps.", { 240,  840, 6015,  600}, {.Points = 12, .Alignment = Qt::AlignHCenter});
  QLabel*       Label3     = Frame1->label    ("Label3",     "Written by",                                                        { 240, 1560, 6015,  225}, {.Alignment = Qt::AlignHCenter});
  QLabel*       Label4     = Frame1->label    ("Label4",     MILL_AUTHOR,                                                         { 240, 1785, 6015,  360}, {.Points = 13.5, .Alignment = Qt::AlignHCenter});
  QLabel*       Label5     = Frame1->label    ("Label5",     "For comments or suggestions send an e-mail to: " MILL_AUTHOR_EMAIL, { 240, 2310, 6015,  225});
  QLabel*       Label6     = Frame1->label    ("Label6",     "Or vist my Ironveil website at: " MILL_AUTHOR_SITE,                 { 240, 2580, 6015,  225});
  QPushButton*  cmdReadme  = button("cmdReadme", "&Read Me",                                                                      {4080, 3300, 1215,  375}, [this] { cmdReadme_Click(); });
  QPushButton*  cmdOK      = button("cmdOK",     "&OK",                                                                           {5400, 3300, 1215,  375}, [this] { Unload(); });
  // clang-format on
};

inline forms::Global<AboutForm> frmAbout;

}  // namespace mill
