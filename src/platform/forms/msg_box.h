#pragma once

#include <functional>
#include <string>

namespace forms {

enum class Buttons { OK, OKCancel, YesNo };
enum class Icon { None, Critical, Information };
enum class Answer { OK, Cancel, Yes, No };

/// One message to the user; an empty title stands for the application's.
struct Message {
  std::string text;
  std::string title = {};
  Buttons buttons = Buttons::OK;
  Icon icon = Icon::None;
};

/// Shows the message over the active form and waits for the button. Escape and the close box answer
/// what does least: OK, Cancel or No.
Answer MsgBox(const Message& message);

/// Gives every message to `answer` instead of showing it, until it is called with nothing. For
/// tests.
void answerMessagesWith(std::function<Answer(const Message&)> answer);

}  // namespace forms
