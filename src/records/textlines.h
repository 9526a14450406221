// The lines of a record file as the reader tells them apart.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <cstdint>

namespace veneerer {

enum class LineEnd : std::uint8_t { None, Return, Feed, ReturnFeed };

/// A line in the code page of record files.
struct TextLine {
  QString text;  ///< without its end
  LineEnd end = LineEnd::None;

  bool operator==(const TextLine&) const = default;
};

/// Goes through bytes line by line: CR LF, a lone CR and a lone LF each end one. The bytes must stay.
class TextLines {
public:
  explicit TextLines(QByteArrayView bytes) : bytes_(bytes) {}

  bool atEnd() const { return at_ == bytes_.size(); }
  /// The byte at which the next line begins.
  qsizetype position() const { return at_; }
  /// The next line with its end; empty when there is none.
  QByteArrayView next();

private:
  QByteArrayView bytes_;
  qsizetype at_ = 0;
};

/// What such a line holds.
TextLine textLine(QByteArrayView line);

}  // namespace veneerer
