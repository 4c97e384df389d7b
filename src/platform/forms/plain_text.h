#pragma once

#include <QString>
#include <QTextDocument>

namespace forms {

/// A text for a tool tip, which Qt would otherwise take for rich text if it looks like that.
inline QString plainToolTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

}  // namespace forms
