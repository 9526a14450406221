// Elements that files are read into, outside of any designer.
#pragma once

#include "history/recording.h"
#include "problems/filecheck.h"
#include "records/layoutreader.h"

namespace veneerer::fuzz {

/// A Skin's folder with two pictures, and elements as the program has them before it loads. The elements are
/// those of all worlds, since making them takes three times as long as a run: there is one world at a time.
class RecordWorld {
public:
  RecordWorld();
  /// Puts back all that was changed, as an undo does.
  ~RecordWorld();
  RecordWorld(const RecordWorld&) = delete;
  RecordWorld& operator=(const RecordWorld&) = delete;

  const SkinFolder& folder() const { return skin_.folder; }
  State& state() { return skin_.state; }
  Loading loading() { return {skin_.state, skin_.folder, skin_.screen}; }

  /// Reads the bytes as a load does. Requires the failure, if there is one, to be told in full. True when the
  /// load goes on.
  bool reads(const Layout& layout, const QByteArray& bytes);
  /// What a check finds in a file of these bytes.
  Findings check(const Layout& layout, const QByteArray& bytes);

private:
  CheckedSkin& skin_;
  Recording recording_{skin_.state};
};

}  // namespace veneerer::fuzz
