// Which fonts texts can be shown in as they are meant.
#pragma once

#include <QHash>
#include <QString>

namespace veneerer {

class FontsAtHand {
public:
  /// Whether this machine has the family, or one that takes the same room. Each family is asked for once.
  bool has(const QString& family);

private:
  QHash<QString, bool> known_;
};

}  // namespace veneerer
