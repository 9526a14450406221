// Whether picture files can be decoded, for a check that shows none of them.
#pragma once

#include <QHash>
#include <QString>

namespace veneerer {

/// What trying to decode a file gave; one beyond the allowance isn't tried.
enum class PictureTrial { Fine, Broken, Untried };

/// The work that all trials together may do, in pixels walked and bytes read: more than the pictures of a
/// Skin for the largest screens need, and some seconds for the slowest that a stranger can make.
inline constexpr qint64 kTrialAllowance = 400LL * 1024 * 1024;

/// Decodes each file once and keeps nothing of its pixels.
class PictureTrials {
public:
  /// The work in the unit of PictureCost.
  explicit PictureTrials(qint64 allowance) : left_(allowance) {}

  PictureTrial of(const QString& path);

  /// The file was written anew: the next question tries it again.
  void forget(const QString& path) { known_.remove(path); }

  /// How many files weren't tried.
  int untried() const;

private:
  PictureTrial tried(const QString& path);

  QHash<QString, PictureTrial> known_;
  qint64 left_;
};

}  // namespace veneerer
