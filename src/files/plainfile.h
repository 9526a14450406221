// Reads files that a stranger may have put there: never a pipe, a device or a file without end, and where the
// caller asks for it none that lies elsewhere. Opening never waits, and what is looked at is the opened file
// itself: nothing can take its place between the look and the read.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

namespace veneerer {

/// What reading a file gave.
struct FileContent {
  enum class Outcome { Read, Missing, Refused };
  Outcome outcome = Outcome::Missing;
  QByteArray bytes;  ///< of a file that was read
  QString reason;    ///< why there are none, as a sentence of its own: "the file lies outside ..."

  bool isRead() const { return outcome == Outcome::Read; }
};

/// The whole plain file of that path, wherever links lead. One of more than mostBytes is refused, and no more
/// than one byte above them is ever read.
FileContent readPlainFile(const QString& path, qint64 mostBytes);

/// The same, but refused unless the file, links resolved, lies in that folder or somewhere below it.
FileContent readFileInside(const QString& folder, const QString& path, qint64 mostBytes);

/// Why readFileInside would refuse the file; empty for one that it would read and for one that isn't there.
QString faultInside(const QString& folder, const QString& path, qint64 mostBytes);

/// The first bytes of the plain file of that path, fewer where it is shorter; none when it can't be read.
QByteArray headOfFile(const QString& path, qint64 bytes);

/// A plain file that is read piece by piece, however large it is.
class PlainFileReader {
public:
  explicit PlainFileReader(const QString& path);
  ~PlainFileReader();

  /// The next piece; empty at the end and on a failure.
  QByteArray next();
  /// Why the file can't be read, or not to its end; empty so long as nothing is wrong.
  const QString& fault() const { return fault_; }

private:
  struct Opened;
  std::unique_ptr<Opened> opened_;
  QString fault_;
};

/// Whether both are plain files that can be read and hold the same.
bool haveSameBytes(const QString& path, const QString& other);

}  // namespace veneerer
