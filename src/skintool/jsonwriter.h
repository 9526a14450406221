// JSON written piece by piece, so that a whole state is never held and needs no tree of values.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdio>
#include <string>
#include <string_view>

namespace veneerer {

/// Writes one document in the form of QJsonDocument's indented one, to the byte, but that a character which
/// would steer a terminal stands as an escape. Members come as they are given: whoever wants them in order
/// gives them in order. Throws std::runtime_error when something can't be written.
class JsonWriter {
public:
  explicit JsonWriter(std::FILE* out) : out_(out) {}

  /// '{' or '[': what follows stands inside, up to the close() of its counterpart.
  void open(char bracket);
  void close(char bracket);
  /// The name of the member that the next value or bracket is; it has nothing that needs an escape.
  void name(std::string_view plain);
  void anyName(const QString& name);

  void truth(bool value);
  void whole(int value);
  /// Of a Single as many digits as bring the same Single back.
  void single(float value);
  void text(const QString& text);
  void texts(const QStringList& texts);

  /// The last line's end, and all that was written is given out.
  void finish();

private:
  void startValue();
  void startLine();
  void putText(const QString& text);
  void putForeign(const QString& text);
  void flush();

  std::FILE* out_;
  std::string buffer_;
  int depth_ = 0;
  bool isFirst_ = true;   ///< nothing stands yet between the last opened bracket and what comes next
  bool isNamed_ = false;  ///< what comes next stands behind its name
};

}  // namespace veneerer
