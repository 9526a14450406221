#include "fuzz/recordworld.h"

#include <QTemporaryDir>

#include "design/design.h"
#include "elements/printable.h"
#include "elements/require.h"
#include "fuzz/smallpictures.h"
#include "records/recorderror.h"
#include "skin/lists.h"
#include "support/files.h"
#include "support/hostilepictures.h"

namespace veneerer::fuzz {

namespace {

struct Folder {
  Folder() {
    test::writeBytes(top.filePath(QStringLiteral("images/a.png")), test::flatPng({9, 4}));
    test::writeBytes(top.filePath(QStringLiteral("images/b.gif")), test::blinkingGif(2, 2));
  }
  QTemporaryDir top;
};

QString folderPath() {
  static const Folder made;
  return made.top.path();
}

/// As it is before a load, but for what the world in hand did to it, and for what is known of pictures: the
/// same files can be decoded as before.
struct Kept {
  Kept() {
    applyBuiltInDesign(skin.state);
    fillFirstLists(skin.state);
    fillOtherLists(skin.state);
  }
  CheckedSkin skin{SkinFolder(folderPath()), {}, {}, PictureTrials(kTrialAllowance)};
};

CheckedSkin& keptSkin() {
  static Kept kept;
  return kept.skin;
}

}  // namespace

RecordWorld::RecordWorld() : skin_(keptSkin()) {
  skin_.state.board.recordWith([this](const Change& change) { recording_.note(change); });
}

RecordWorld::~RecordWorld() {
  skin_.state.board.recordWith({});
  apply(skin_.state, recording_.take(), Way::Back);
  // It remembers what lay in it, and a check writes there.
  skin_.folder = SkinFolder(folderPath());
  skin_.places.clear();
  skin_.namedPictures.clear();
}

bool RecordWorld::reads(const Layout& layout, const QByteArray& bytes) {
  Loading load = loading();
  try {
    readRecords(layout, bytes, load);
    return true;
  } catch (const RecordError& error) {
    require(error.message() == printable(error.message()), "a failure's message is printable");
    require(error.message().size() <= 1000 && error.report().size() <= 20'000,
            "a failure quotes no endless text");
    require(error.line() >= 0, "a failure has a line");
    return false;
  }
}

Findings RecordWorld::check(const Layout& layout, const QByteArray& bytes) {
  test::writeBytes(skin_.folder.file(layout.fileName()), bytes);
  return settled(skin_, checkFile(skin_, layout.fileName(), layout, FindingKind::Error));
}

}  // namespace veneerer::fuzz
