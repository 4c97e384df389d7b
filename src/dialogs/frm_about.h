#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace mill {

/// Tells the program's name, its version and whom to write to, and opens the read-me file. The main
/// window stays usable beside it.
class AboutForm final : public forms::Form {
 public:
  AboutForm();

 private:
  void Form_Load() override;
  void cmdReadme_Click();
  void cmdOK_Click() { Unload(); }

  static constexpr auto Fixed = forms::LabelStyle::Fixed;
  static constexpr auto Centre = forms::Alignment::Centre;

  forms::Frame Frame1{*this, "Frame1", "", {120, 120, 6495, 3000}};
  forms::Label Label1{Frame1, "Label1",      "Raster Mill", {720, 180, 2760, 570},
                      Fixed,  {.Points = 24}};
  forms::Label lblVersion{
      Frame1,          "lblVersion", "Version", {3720, 360, 1455, 330}, forms::LabelStyle::AutoSize,
      {.Points = 13.5}};
  forms::Label Label2{
      Frame1,
      "Label2",
      "This is the public Beta release of the bitmap conversion utility for Ironveil bitmaps.",
      {240, 840, 6015, 600},
      Fixed,
      {.Points = 12, .Alignment = Centre}};
  forms::Label Label3{
      Frame1, "Label3", "Written by", {240, 1560, 6015, 225}, Fixed, {.Alignment = Centre}};
  forms::Label Label4{Frame1,      "Label4",
                      MILL_AUTHOR, {240, 1785, 6015, 360},
                      Fixed,       {.Points = 13.5, .Alignment = Centre}};
  forms::Label Label5{Frame1,
                      "Label5",
                      "For comments or suggestions send an e-mail to: " MILL_AUTHOR_EMAIL,
                      {240, 2310, 6015, 225}};
  forms::Label Label6{Frame1,
                      "Label6",
                      "Or vist my Ironveil website at: " MILL_AUTHOR_SITE,
                      {240, 2580, 6015, 225}};
  forms::CommandButton cmdReadme{
      *this, "cmdReadme", "&Read Me", {4080, 3300, 1215, 375}, &AboutForm::cmdReadme_Click};
  forms::CommandButton cmdOK{
      *this, "cmdOK", "&OK", {5400, 3300, 1215, 375}, &AboutForm::cmdOK_Click};
};

inline forms::Global<AboutForm> frmAbout;

}  // namespace mill
