#pragma once

namespace forms {

class Form;

/// Shows the wait cursor on the active form while it exists. The cursor is reset by the event loop,
/// so that a series of short operations doesn't flicker.
class Hourglass {
 public:
  Hourglass();
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Form* const form_;
};

}  // namespace forms
