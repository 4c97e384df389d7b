#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/image.h"

namespace mill {

/// The program's name and version with its picture, in a window without a title bar, which stays
/// until its button or the frame is clicked. Nothing opens it so far: the main window is there
/// before anybody could read it.
class SplashForm final : public forms::Form {
 public:
  SplashForm();

 private:
  void Form_Load() override;
  void cmdOK_Click() { Unload(); }
  void Frame1_Click() { Unload(); }

  static constexpr auto Fixed = forms::LabelStyle::Fixed;
  static constexpr auto AutoSize = forms::LabelStyle::AutoSize;
  static constexpr auto Right = forms::Alignment::Right;

  forms::Frame Frame1{*this, "Frame1", "", {120, 120, 7140, 4005}, &SplashForm::Frame1_Click};
  forms::Image imgLogo{Frame1, "imgLogo", {240, 540, 1815, 2385}, "logo.png"};
  forms::Label lblRelease{Frame1, "lblRelease",        "Public Beta Release", {240, 180, 6660, 225},
                          Fixed,  {.Alignment = Right}};
  forms::Label lblCompanyProduct{Frame1,           "lblCompanyProduct",
                                 "CompanyProduct", {2340, 600, 2865, 435},
                                 AutoSize,         {.Points = 18, .Bold = true}};
  forms::Label lblProductName{Frame1,    "lblProductName",
                              "Product", {2340, 1080, 2400, 765},
                              AutoSize,  {.Points = 32.25, .Bold = true}};
  forms::Label lblPlatform{Frame1,    "lblPlatform",
                           "Windows", {5430, 1980, 1470, 375},
                           AutoSize,  {.Points = 15.75, .Bold = true, .Alignment = Right}};
  forms::Label lblVersion{Frame1,    "lblVersion",
                          "Version", {5895, 2400, 1005, 285},
                          AutoSize,  {.Points = 12, .Bold = true, .Alignment = Right}};
  forms::Label lblNotice{Frame1, "lblNotice", "", {2340, 2760, 4560, 225}};
  forms::Label lblCompany{Frame1, "lblCompany", "Ferndale Computers", {240, 3060, 4560, 225}};
  forms::Label lblWarning{Frame1, "lblWarning", "Warning", {240, 3300, 5100, 225}};
  forms::CommandButton cmdOK{
      Frame1, "cmdOK", "OK", {5805, 3540, 1095, 375}, &SplashForm::cmdOK_Click};
};

inline forms::Global<SplashForm> frmSplash;

}  // namespace mill
