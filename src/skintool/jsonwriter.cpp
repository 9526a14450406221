#include "skintool/jsonwriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "skintool/output.h"

namespace veneerer {

namespace {

constexpr std::size_t kFull = 64 * 1024;  // bytes, of which one write is made
constexpr float kLeastPlain = 0.001F;
constexpr float kMostPlain = 1'000'000;

bool isPlain(QChar unit) {
  return unit.unicode() >= 0x20 && unit.unicode() < 0x7F && unit != u'"' && unit != u'\\';
}

template <class... Number>
void append(std::string& text, Number... number) {
  char digits[64];
  text.append(digits, std::to_chars(digits, digits + sizeof digits, number...).ptr);
}

// The double whose shortest form is the Single's shortest form, so that the text brings the same Single back.
double asShortestDouble(float number) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, number).ptr;
  double shortest = 0;
  std::from_chars(text, end, shortest);
  return shortest;
}

/// Compact, without the brackets around it.
QByteArray byQt(const QJsonValue& value) {
  return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).chopped(1).sliced(1);
}

}  // namespace

void JsonWriter::open(char bracket) {
  startValue();
  buffer_ += bracket;
  ++depth_;
  isFirst_ = true;
}

void JsonWriter::close(char bracket) {
  --depth_;
  isFirst_ = true;
  startLine();
  buffer_ += bracket;
  isFirst_ = false;
}

void JsonWriter::name(std::string_view plain) {
  startLine();
  buffer_.append(1, '"').append(plain).append("\": ");
  isNamed_ = true;
}

void JsonWriter::anyName(const QString& name) {
  startLine();
  putText(name);
  buffer_ += ": ";
  isNamed_ = true;
}

void JsonWriter::truth(bool value) {
  startValue();
  buffer_ += value ? "true" : "false";
}

void JsonWriter::whole(int value) {
  startValue();
  append(buffer_, value);
}

void JsonWriter::single(float value) {
  startValue();
  // Nearly all are of a size whose shortest form has no exponent.
  const float size = std::abs(value);
  if (size == 0 && !std::signbit(value))
    buffer_ += '0';
  else if (size > kLeastPlain && size < kMostPlain)
    append(buffer_, value, std::chars_format::fixed);
  else
    buffer_ += byQt(asShortestDouble(value)).constData();
}

void JsonWriter::text(const QString& text) {
  startValue();
  putText(text);
}

void JsonWriter::texts(const QStringList& texts) {
  open('[');
  for (const QString& each : texts) text(each);
  close(']');
}

void JsonWriter::finish() {
  buffer_ += '\n';
  flush();
  print(out_, {});
}

void JsonWriter::startValue() {
  if (!std::exchange(isNamed_, false) && depth_ > 0) startLine();
}

void JsonWriter::startLine() {
  if (buffer_.size() >= kFull) flush();
  if (!std::exchange(isFirst_, false)) buffer_ += ',';
  buffer_ += '\n';
  buffer_.append(4 * static_cast<std::size_t>(depth_), ' ');
}

void JsonWriter::putText(const QString& text) {
  if (!std::ranges::all_of(text, isPlain)) return putForeign(text);
  const std::size_t from = buffer_.size() + 1;
  buffer_.append(static_cast<std::size_t>(text.size()) + 2, '"');
  std::ranges::transform(text, &buffer_[from], [](QChar unit) { return static_cast<char>(unit.unicode()); });
}

void JsonWriter::putForeign(const QString& text) {
  flush();
  putJson(out_, byQt(text));
}

void JsonWriter::flush() {
  put(out_, buffer_);
  buffer_.clear();
}

}  // namespace veneerer
