#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace sys {

/// Texts are bytes, since file names are. On the screen they are shown as UTF-8; a byte that isn't
/// part of valid UTF-8 becomes one lone surrogate (U+DC80 to U+DCFF), so that every text comes back
/// from a control as it went in.
QString shown(std::string_view bytes);
std::string bytesOf(const QString& text);

}  // namespace sys
