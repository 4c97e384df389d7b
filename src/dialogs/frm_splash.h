#pragma once

#include "platform/forms/form.h"
#include "platform/system/application.h"

namespace mill {

/// The program's name, version and logo in a window without title bar. It stays until its button or
/// the frame is clicked. Nothing opens it: the main window is up before anybody could read it.
class SplashForm final : public forms::Form {
 public:
  SplashForm();

 protected:
  /// Receives clicks on the frame, but not on its contents.
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  // clang-format off
  forms::Frame* Frame1            = frame("Frame1", "",                                             { 120,  120, 7140, 4005});
  QLabel*       imgLogo           = Frame1->label    ("imgLogo",           "",                      { 240,  540, 1815, 2385});
  QLabel*       lblRelease        = Frame1->label    ("lblRelease",        "Public Beta Release",   { 240,  180, 6660,  225}, {.Alignment = Qt::AlignRight});
  QLabel*       lblCompanyProduct = Frame1->autoLabel("lblCompanyProduct", "CompanyProduct",        {2340,  600, 2865,  435}, {.Points = 18, .Bold = true});
  QLabel*       lblProductName    = Frame1->autoLabel("lblProductName",    sys::App.Title,          {2340, 1080, 2400,  765}, {.Points = 32.25, .Bold = true});
  QLabel*       lblPlatform       = Frame1->autoLabel("lblPlatform",       "Windows",               {5430, 1980, 1470,  375}, {.Points = 15.75, .Bold = true, .Alignment = Qt::AlignRight});
  QLabel*       lblVersion        = Frame1->autoLabel("lblVersion",        "Version " MILL_VERSION, {5895, 2400, 1005,  285}, {.Points = 12, .Bold = true, .Alignment = Qt::AlignRight});
  QLabel*       lblNotice         = Frame1->label    ("lblNotice",         "",                      {2340, 2760, 4560,  225});
  QLabel*       lblCompany        = Frame1->label    ("lblCompany",        "Ferndale Computers",    { 240, 3060, 4560,  225});
  QLabel*       lblWarning        = Frame1->label    ("lblWarning",        "Warning",               { 240, 3300, 5100,  225});
  QPushButton*  cmdOK             = Frame1->button   ("cmdOK",             "OK",                    {5805, 3540, 1095,  375}, [this] { Unload(); });
  // clang-format on
};

inline forms::Global<SplashForm> frmSplash;

}  // namespace mill
