// Reads the values of one record file, in order. Knows lines, not fields.
#pragma once

#include <QByteArray>
#include <string_view>

#include "records/recordvalue.h"

namespace veneerer {

class RecordReader {
public:
  /// The whole file. A byte 1A (hex) at its very end is passed over.
  explicit RecordReader(QByteArray bytes);

  /// True when no byte is left.
  bool atEnd() const { return at_ == bytes_.size(); }
  /// The line, counted from 1, on which the next value stands.
  int line() const { return line_; }
  /// The next value with no type expected. At the end of the file it is an error of the caller.
  RecordValue readValue();
  /// The rest of the current line as raw text, its end consumed.
  QString readLine();
  /// The same for whom the text is nothing to.
  void skipLine();
  /// The value or line that was read last, up to its first comma, as it stands: a message quotes a number in
  /// the form that the file has it in.
  QString lastText() const;

private:
  char peek() const { return bytes_[at_]; }
  bool atLineEnd() const { return atEnd() || peek() == '\r' || peek() == '\n'; }
  void skipLineEnd();
  void skipBlanks();
  RecordValue readQuoted();
  std::string_view passLine();

  QByteArray bytes_;
  qsizetype at_ = 0;
  qsizetype lastFrom_ = 0;  ///< where the last value began
  int line_ = 1;
};

}  // namespace veneerer
