#include "platform/system/text.h"

#include <QByteArrayView>

namespace sys {

namespace {

constexpr char16_t kEscape = 0xDC00;

bool isEscaped(const QString& text, qsizetype at) {
  const char16_t unit = text[at].unicode();
  if (unit < kEscape + 0x80 || unit > kEscape + 0xFF) return false;
  return at == 0 || !text[at - 1].isHighSurrogate();
}

/// The length of a UTF-8 sequence that begins with `lead`, in bytes.
std::size_t sequenceLength(unsigned char lead) {
  return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

}  // namespace

QString shown(std::string_view bytes) {
  const auto view = [](std::string_view part) {
    return QByteArrayView(part.data(), static_cast<qsizetype>(part.size()));
  };
  if (view(bytes).isValidUtf8()) return QString::fromUtf8(view(bytes));
  QString text;
  while (!bytes.empty()) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    std::string_view sequence = bytes.substr(0, sequenceLength(lead));
    if (view(sequence).isValidUtf8()) {
      text += QString::fromUtf8(view(sequence));
    } else {
      sequence = bytes.substr(0, 1);
      text += QChar(static_cast<char16_t>(kEscape + lead));
    }
    bytes.remove_prefix(sequence.size());
  }
  return text;
}

std::string bytesOf(const QString& text) {
  std::string bytes;
  qsizetype from = 0;
  const auto flush = [&](qsizetype to) {
    bytes += QStringView(text).mid(from, to - from).toUtf8().toStdString();
    from = to + 1;
  };
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (!isEscaped(text, at)) continue;
    flush(at);
    bytes += static_cast<char>(text[at].unicode() - kEscape);
  }
  flush(text.size());
  return bytes;
}

}  // namespace sys
