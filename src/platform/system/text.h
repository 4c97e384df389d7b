#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace sys {

/// The program's texts are bytes, since file names are. Controls show them as UTF-8; a byte that is
/// not part of valid UTF-8 becomes a lone surrogate (U+DC80 to U+DCFF), so that every text survives
/// the round trip through a control.
QString shown(std::string_view bytes);
std::string bytesOf(const QString& text);

}  // namespace sys
