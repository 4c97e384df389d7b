#pragma once

#include <QLabel>

#include "formats/picture_record.h"

namespace mill {

/// An area that shows one colour.
class Patch final : public QLabel {
 public:
  explicit Patch(QWidget* parent) : QLabel(parent) {
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setAutoFillBackground(true);
  }

  void setColour(const ColourEntry& colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(colour.Red, colour.Green, colour.Blue));
    setPalette(colours);
  }
};

}  // namespace mill
