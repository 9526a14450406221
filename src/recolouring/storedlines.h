// The colours of files as they lie on the disk, line by line: cover files, and what a load reads and no save
// writes.
#pragma once

#include <QHash>

#include "forms/state.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"
#include "recolouring/colourmap.h"
#include "skin/catalogue.h"

namespace veneerer {

class StoredLines {
public:
  StoredLines(const SkinFolder& folder, const Screen& screen);

  /// Whether a file of that name, from the Skin's folder on, is one of these.
  bool hold(const QString& name) const;

  /// Such a file with its colours recoloured and every other byte as it is; nothing where that changes none,
  /// or it doesn't read well.
  std::optional<QByteArray> recoloured(const QString& name, const QByteArray& bytes, const ColourMap& map);

private:
  Layout layoutOf(const QString& name, const QByteArray& bytes);

  SkinFolder folder_;
  Screen screen_;
  State state_;  ///< what files are read into, one after the other
  QHash<QString, MakeLayout> layouts_;
};

}  // namespace veneerer
