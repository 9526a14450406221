#include "records/recordreader.h"

#include "records/codepage.h"

namespace veneerer {

namespace {

std::string_view part(const QByteArray& bytes, qsizetype from, qsizetype to) {
  return {bytes.constData() + from, static_cast<std::size_t>(to - from)};
}

int countLineEnds(std::string_view text) {
  int count = 0;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'))) ++count;
  return count;
}

}  // namespace

RecordReader::RecordReader(QByteArray bytes) : bytes_(std::move(bytes)) {
  if (bytes_.endsWith('\x1A')) bytes_.chop(1);
}

// CR LF, a lone LF and a lone CR each end a line.
void RecordReader::skipLineEnd() {
  if (atEnd()) return;
  const bool isReturn = peek() == '\r';
  ++at_;
  if (isReturn && !atEnd() && peek() == '\n') ++at_;
  ++line_;
}

void RecordReader::skipBlanks() {
  while (!atEnd() && (peek() == ' ' || peek() == '\t')) ++at_;
}

RecordValue RecordReader::readValue() {
  skipBlanks();
  lastFrom_ = at_;
  if (atLineEnd()) {
    skipLineEnd();
    return std::monostate();
  }
  if (peek() == '"') return readQuoted();
  const qsizetype from = at_;
  while (!atLineEnd() && peek() != ',') ++at_;
  const RecordValue value = recognise(part(bytes_, from, at_));
  if (!atEnd() && peek() == ',')
    ++at_;
  else
    skipLineEnd();
  return value;
}

// Runs to the next quote, across lines if need be; what follows it is passed over to the value's end.
RecordValue RecordReader::readQuoted() {
  const qsizetype from = ++at_;
  while (!atEnd() && peek() != '"') ++at_;
  const std::string_view text = part(bytes_, from, at_);
  line_ += countLineEnds(text);
  while (!atLineEnd() && peek() != ',') ++at_;
  if (!atEnd() && peek() == ',')
    ++at_;
  else
    skipLineEnd();
  return fromCodePage(text);
}

QString RecordReader::readLine() {
  return fromCodePage(passLine());
}

void RecordReader::skipLine() {
  passLine();
}

std::string_view RecordReader::passLine() {
  lastFrom_ = at_;
  while (!atLineEnd()) ++at_;
  const std::string_view line = part(bytes_, lastFrom_, at_);
  skipLineEnd();
  return line;
}

QString RecordReader::lastText() const {
  qsizetype to = lastFrom_;
  while (to < bytes_.size() && !QByteArrayView(",\r\n").contains(bytes_[to])) ++to;
  return fromCodePage(part(bytes_, lastFrom_, to));
}

}  // namespace veneerer
