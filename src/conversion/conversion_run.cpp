#include "conversion/conversion_run.h"

#include <QLocale>

#include <algorithm>
#include <utility>

#include "picture/warn.h"
#include "platform/system/paths.h"

namespace mill {

namespace {

/// "3 of 20,000".
std::string share(int part, int whole) {
  const QLocale english(QLocale::English);
  return (english.toString(part) + QLatin1String(" of ") + english.toString(whole)).toStdString();
}

}  // namespace

ConversionRun::ConversionRun(std::string directory, int count)
    : directory_(std::move(directory)), count_(count) {}

void ConversionRun::next(const std::string& name) {
  ++current_;
  name_ = name;
}

std::string ConversionRun::progressText() const {
  return share(current_, count_) + " – " + name_;
}

std::string ConversionRun::whichPicture() const {
  return share(current_, count_) + "\n" + sys::join(directory_, name_);
}

forms::Answer ConversionRun::tell(forms::Message message) {
  const bool isFailure = message.buttons == forms::Buttons::OK;
  if (isFailure && isSilent_) {
    if (passedOver_.empty() || passedOver_.back() != name_) passedOver_.push_back(name_);
    return forms::Answer::OK;
  }
  paletteNames_.forget();
  std::string where = whichPicture();
  if (!message.informative.empty()) where.append("\n").append(message.informative);
  message.informative = std::move(where);
  if (!isFailure || ++failures_ == 1 || current_ == count_ || !goesOn_) {
    return forms::MsgBox(message);
  }
  message.informative += "\nGo on with the remaining pictures?";
  message.buttons = forms::Buttons::YesNo;
  message.option = {.caption = "Don't ask again in this run", .isChosen = &isSilent_};
  goesOn_ = forms::MsgBox(message) == forms::Answer::Yes;
  return forms::Answer::OK;
}

void ConversionRun::succeed() {
  ++converted_;
  if (passedOver_.empty() || passedOver_.back() != name_) return;
  passedOver_.pop_back();
  warnedOf_.push_back(name_);
}

void ConversionRun::sumUp() const {
  std::string text, names;
  const auto add = [&](const std::vector<std::string>& pictures, const char* what) {
    if (pictures.empty()) return;
    for (std::string* above : {&text, &names}) {
      if (!above->empty()) above->append("\n");
    }
    text.append(share(static_cast<int>(pictures.size()), count_)).append(what);
    for (const std::string& name : pictures) names.append(name).append("\n");
  };
  add(passedOver_, " pictures were passed over.");
  add(warnedOf_, " pictures were converted with a warning.");
  if (text.empty()) return;
  forms::MsgBox({.text = std::move(text),
                 .title = kWarning,
                 .icon = forms::Icon::Critical,
                 .details = std::move(names)});
}

std::string ConversionRun::result() const {
  return share(converted_, count_) + " pictures were converted.";
}

}  // namespace mill
