#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "conversion/conversion_run.h"
#include "formats/progress_count.h"
#include "platform/forms/form.h"
#include "platform/forms/progress_bar.h"

namespace mill {

/// Asks before a conversion, runs it over the selected files, and shows the progress of reading and
/// writing. Hidden, not unloaded, after use.
class ConvertForm final : public forms::Form {
 public:
  ConvertForm();

  /// Where the bitmaps go; provided by the main window.
  std::function<std::string()> destinationDirectory;

  /// Reports `num` bytes written, `times` times.
  void incProgress(std::int16_t num, std::int32_t times = 1);
  /// Reports `num` bytes read, `times` times.
  void incOpenProgress(std::int16_t num, std::int32_t times = 1);

  /// The count behind both bars; `total` and `current` are set before a read or write.
  ProgressCount count;

 private:
  void Form_Load() override;
  void cmdYes_Click();

  bool directoriesAreOne() const;
  void enableButtons(bool enabled);
  void convertSelection();
  void convertFile(const std::string& name);

  std::optional<ConversionRun> run_;

  // clang-format off
  QLabel*             Label2    = label("Label2", "Are you sure you want to continue with the bitmap conversion.", { 120,  120, 3615, 1095}, {.Points = 12, .Bold = true});
  QLabel*             Label3    = autoLabel("Label3", "Open Progress:",                                            { 120, 1320, 1095,  195});
  forms::ProgressBar* Progress2 = add<forms::ProgressBar>("Progress2",                                             { 120, 1560, 3735,  255}, Label3);
  QLabel*             Label1    = autoLabel("Label1", "Conversion Progess:",                                       { 120, 1920, 1455,  195});
  forms::ProgressBar* Progress1 = add<forms::ProgressBar>("Progress1",                                             { 120, 2160, 3735,  255}, Label1);
  QPushButton*        cmdYes    = button("cmdYes", "Yes",                                                          { 120, 2520, 1335,  375}, [this] { cmdYes_Click(); });
  QPushButton*        cmdNo     = button("cmdNo",  "No",                                                           {1560, 2520, 1335,  375}, [this] { hide(); }, forms::Default | forms::Cancel);
  // clang-format on
};

inline forms::Global<ConvertForm> frmConvert;

}  // namespace mill
