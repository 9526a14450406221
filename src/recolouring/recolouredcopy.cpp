#include "recolouring/recolouredcopy.h"

#include "exchange/skincopy.h"
#include "files/plainfile.h"
#include "recolouring/storedcolours.h"
#include "recolouring/storedlines.h"
#include "recolouring/turnedpicture.h"
#include "records/layoutreader.h"

namespace veneerer {

namespace {

/// What becomes of the files that a copy takes along.
class Remaking {
public:
  Remaking(const Recolouring& recolouring, const SkinFolder& folder, const Screen& screen)
      : recolouring_(recolouring), lines_(folder, screen) {}

  std::optional<QByteArray> remade(const TreeFile& file, const Step& step) {
    if (lines_.hold(file.name)) return remadeLines(file);
    const bool turnsPictures = recolouring_.withPictures && !recolouring_.map.turn.isNothing();
    return turnsPictures ? remadePicture(file, step) : std::nullopt;
  }

  const QList<LeftOut>& keptPictures() const { return kept_; }

private:
  std::optional<QByteArray> remadeLines(const TreeFile& file) {
    const FileContent content = readPlainFile(file.path, kMostRecordBytes);
    if (!content.isRead()) return std::nullopt;
    return lines_.recoloured(file.name, content.bytes, recolouring_.map);
  }

  std::optional<QByteArray> remadePicture(const TreeFile& file, const Step& step) {
    TurnedPicture picture = turnedPicture(file.path, recolouring_.map.turn, step);
    if (!picture.fault.isEmpty()) kept_.append({file.name, picture.fault});
    return std::move(picture.bytes);
  }

  const Recolouring& recolouring_;
  StoredLines lines_;
  QList<LeftOut> kept_;
};

}  // namespace

NotRecoloured copyRecoloured(State& state, const Platform& platform, const QString& from, const QString& to,
                             const Recolouring& recolouring, const GoOn& goOn) {
  Remaking remaking(recolouring, SkinFolder(from), platform.screen);
  CopyChanges changes;
  changes.dress = recoloured(storedColours(state), recolouring.map);
  changes.remade = [&](const TreeFile& file, const Step& step) { return remaking.remade(file, step); };
  const QList<LeftOut> leftOut = copySkin(state, platform.disk, from, to, goOn, {}, changes);
  return {leftOut, remaking.keptPictures()};
}

}  // namespace veneerer
