#pragma once

#include <QTableView>

#include <functional>

#include "formats/picture_record.h"

namespace forms {

class SwatchModel;

/// A palette as 16 × 16 swatches, row by row; neighbours share a line. Arrow keys move, a click,
/// Enter or Space chooses, and a tool tip describes each swatch.
class Swatches final : public QTableView {
 public:
  /// Without `choose` the palette is for display only, and the current swatch is marked only while
  /// the view has the focus.
  explicit Swatches(QWidget* parent, std::function<void(int index)> choose = {});

  /// Repaints once for all colours, and not at all if nothing changes.
  void setColours(const mill::ColourTable& colours);
  /// Makes a swatch the current one without choosing it.
  void setCurrent(int index);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Chooses the current swatch; false if there is none or the palette is for display only.
  bool choose();

  SwatchModel* model_;
  std::function<void(int)> choose_;
};

}  // namespace forms
