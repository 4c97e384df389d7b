#pragma once

namespace forms {

class Form;

/// Shows the hourglass on the active form as long as it lives. It goes when the event loop is back,
/// so that a long run of short operations doesn't flicker.
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
