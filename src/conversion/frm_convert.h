#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "formats/progress_count.h"
#include "picture/conversion_progress.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/progress_bar.h"

namespace mill {

/// Asks before a conversion, runs it over the selected files, and shows how far reading and writing
/// have come. Hidden, never unloaded, after use.
class ConvertForm final : public forms::Form, private ConversionProgress {
 public:
  ConvertForm();

  /// Where the selected files are, and where the bitmaps go. The main window answers both, at the
  /// moment they are asked.
  std::function<std::string()> sourceDirectory;
  std::function<std::string()> destinationDirectory;

  /// `times` reports of `num` more bytes written.
  void incProgress(std::int16_t num, std::int32_t times = 1);
  /// `times` reports of `num` more bytes read.
  void incOpenProgress(std::int16_t num, std::int32_t times = 1);

  /// What both bars count against; `total` and `current` are set before a read or write.
  ProgressCount count;

 private:
  /// Hands the reports of one bar on to the form.
  class Reports final : public Progress {
   public:
    using Method = void (ConvertForm::*)(std::int16_t, std::int32_t);
    Reports(ConvertForm& form, Method method) : form_(form), method_(method) {}
    void start(std::int32_t total) override { form_.count.total = total; }
    void report(std::int16_t num, std::int32_t times) override { (form_.*method_)(num, times); }

   private:
    ConvertForm& form_;
    Method method_;
  };

  void Form_Load() override;
  void Form_Unload() override { conversionProgress = nullptr; }
  void cmdYes_Click();
  void cmdNo_Click() { Hide(); }

  bool directoriesAreOne() const;
  void enableButtons(bool enabled);
  void convertSelection();
  bool convertFile(const std::string& name);

  bool isActive() const override;
  Progress& opening() override { return openReports_; }
  Progress& writing() override { return writeReports_; }

  forms::Label Label2{*this,
                      "Label2",
                      "Are you sure you want to continue with the bitmap conversion.",
                      {120, 120, 3615, 1095},
                      forms::LabelStyle::Fixed,
                      {.Points = 12, .Bold = true}};
  forms::Label Label3{
      *this, "Label3", "Open Progress:", {120, 1320, 1095, 195}, forms::LabelStyle::AutoSize};
  forms::ProgressBar Progress2{*this, "Progress2", {120, 1560, 3735, 255}};
  forms::Label Label1{
      *this, "Label1", "Conversion Progess:", {120, 1920, 1455, 195}, forms::LabelStyle::AutoSize};
  forms::ProgressBar Progress1{*this, "Progress1", {120, 2160, 3735, 255}};
  forms::CommandButton cmdYes{
      *this, "cmdYes", "Yes", {120, 2520, 1335, 375}, &ConvertForm::cmdYes_Click};
  forms::CommandButton cmdNo{*this,
                             "cmdNo",
                             "No",
                             {1560, 2520, 1335, 375},
                             &ConvertForm::cmdNo_Click,
                             forms::Default | forms::Cancel};

  Reports openReports_{*this, &ConvertForm::incOpenProgress};
  Reports writeReports_{*this, &ConvertForm::incProgress};
};

inline forms::Global<ConvertForm> frmConvert;

}  // namespace mill
