#pragma once

#include <functional>
#include <string>

#include "platform/forms/form.h"

namespace forms {

/// A dialog that picks an existing file.
class CommonDialog {
 public:
  /// `filter` is a description and a pattern, parted by a bar: "KSL files (*.ksl)|*.ksl". The
  /// pattern matches without regard to case.
  CommonDialog(Form& owner, const char* name, const char* title, const char* filter);

  /// False where the user cancelled; `FileName` is then as it was.
  bool ShowOpen(const std::string& directory);
  /// The full path picked last, in drive form.
  const std::string& FileName() const { return fileName_; }

 private:
  Form& owner_;
  const char* name_;
  const char* title_;
  const char* filter_;
  std::string fileName_;
};

/// Answers every such dialog with the path that `answer` gives, empty for Cancel, until it is
/// called with nothing. For tests.
void answerCommonDialogWith(std::function<std::string()> answer);

}  // namespace forms
