#include "records/textlines.h"

#include "records/codepage.h"

namespace veneerer {

namespace {

LineEnd endOf(QByteArrayView line) {
  if (line.endsWith("\r\n")) return LineEnd::ReturnFeed;
  if (line.endsWith('\n')) return LineEnd::Feed;
  return line.endsWith('\r') ? LineEnd::Return : LineEnd::None;
}

qsizetype lengthOf(LineEnd end) {
  if (end == LineEnd::None) return 0;
  return end == LineEnd::ReturnFeed ? 2 : 1;
}

}  // namespace

QByteArrayView TextLines::next() {
  const qsizetype from = at_;
  while (!atEnd() && bytes_[at_] != '\r' && bytes_[at_] != '\n') ++at_;
  if (!atEnd() && bytes_[at_++] == '\r' && !atEnd() && bytes_[at_] == '\n') ++at_;
  return bytes_.sliced(from, at_ - from);
}

TextLine textLine(QByteArrayView line) {
  const LineEnd end = endOf(line);
  const QByteArrayView text = line.chopped(lengthOf(end));
  return {fromCodePage({text.data(), static_cast<std::size_t>(text.size())}), end};
}

}  // namespace veneerer
