#pragma once

#include <string>

namespace forms {

// The values are those of Qt's message box.
enum class Icon { None = 0, Information = 1, Critical = 3 };
enum class Answer { OK = 0x400, Yes = 0x4000, No = 0x10000, Cancel = 0x400000 };
enum class Buttons { OK = 0x400, OKCancel = 0x400400, YesNo = 0x14000 };

/// A check box in a message. `isChosen` is where the user's choice goes.
struct Option {
  std::string caption = {};
  bool* isChosen = nullptr;
};

/// One message to the user; an empty title stands for the application's.
struct Message {
  std::string text;
  std::string title = {};
  Buttons buttons = Buttons::OK;
  Icon icon = Icon::None;
  std::string informative = {};  ///< shown below the text
  std::string details = {};      ///< shown on request
  Option option = {};            ///< none if its caption is empty
};

/// Shows the message over the active form and waits for the answer. Escape and the close box mean
/// the most harmless one: OK, Cancel or No.
Answer MsgBox(const Message& message);

}  // namespace forms
