// A record file's lines as they stand, for checks that the grammar has already lost the answer to.
#pragma once

#include <QByteArray>
#include <QStringList>

namespace veneerer {

class RawLines {
public:
  explicit RawLines(QByteArray bytes);

  const QByteArray& bytes() const { return bytes_; }
  int count() const { return static_cast<int>(lines_.size()); }
  /// Counted from 0.
  const QString& line(int index) const { return lines_[index]; }

private:
  QByteArray bytes_;
  QStringList lines_;
};

/// What the next load does to a caption that stands like this on its line; empty when it comes back
/// unchanged.
QString captionDamage(const QString& caption);

}  // namespace veneerer
