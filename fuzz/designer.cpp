// Anything that an operator can do, and what must hold of it: undoing all gives the Skin as it was loaded,
// redoing all gives it as it was last, and what a check finds nothing about comes back from the disk.
#include "designer/designer.h"

#include <algorithm>
#include <random>

#include "designer/restoredstate.h"
#include "elements/require.h"
#include "fuzz/hand.h"
#include "fuzz/target.h"
#include "problems/check.h"
#include "records/recorderror.h"
#include "skin/skinsaver.h"
#include "support/files.h"
#include "tools/resizer.h"

namespace veneerer::fuzz {

namespace {

/// Ends the process and tells what differs.
void requireSame(const test::RestoredState& one, const test::RestoredState& other, const std::string& what) {
  const std::string difference = one.difference(other);
  if (!difference.empty()) stopProgram((what + ":\n" + difference).c_str());
}

// The list of cover files follows the disk.
test::RestoredState restored(World& world) {
  return test::RestoredState(world.state(), {&*world.state().form4.File1});
}

void undoesAndRedoesAll(World& world, const test::RestoredState& first) {
  History& history = world.designer->history();
  history.redoAll();
  const test::RestoredState last = restored(world);
  history.undoAll();
  requireSame(first, restored(world), "undoing all gives another state than the load");
  history.redoAll();
  requireSame(last, restored(world), "redoing all gives another state than the last one");
}

bool hasOfKind(const Findings& findings, FindingKind kind) {
  return std::ranges::any_of(findings, [&](const Finding& each) { return each.kind == kind; });
}

/// Of what is about values; what is about pictures and further files aside.
bool isAllWell(const Findings& findings) {
  return std::ranges::none_of(findings, [](const Finding& each) { return each.line > 0; });
}

void writeRecords(const QString& folder, const std::vector<NewFile>& records) {
  for (const NewFile& file : records) test::writeBytes(folder + u'/' + file.name, file.bytes);
}

void requireSame(const std::vector<NewFile>& one, const std::vector<NewFile>& other) {
  for (std::size_t i = 0; i < one.size(); ++i)
    if (one[i].bytes != other[i].bytes)
      stopProgram(("saved, loaded and saved again it differs: " + one[i].name.toStdString()).c_str());
}

void comesBack(World& world) {
  const QString folder = World::skin(QStringLiteral("N"));
  world.disk.makeFolder(folder).clear();
  std::vector<NewFile> records = composedRecords(world.state());
  for (int round = 0; round < 2; ++round) {
    writeRecords(folder, records);
    const Findings findings = checkSkin(SkinFolder(folder), world.platform.screen, 0).findings;
    std::vector<NewFile> again;
    const bool isLoaded = World::loads(QStringLiteral("N"), again);
    require(isLoaded != hasOfKind(findings, FindingKind::Error), "a check finds an error where a load fails");
    if (!isLoaded || !isAllWell(findings)) return;
    // A load puts right what a first save took from another element than a load fills.
    if (round > 0) requireSame(records, again);
    records = again;
  }
}

void run(const QByteArray& input) {
  World world(ScriptedDialogs::Unexpected::Cancel);
  Choices choices(input);
  const bool isSaved = choices.byte() % 8 == 0;
  const test::RestoredState first = restored(world);
  try {
    Hand(world, choices).play();
  } catch (const RecordError&) {
    return;  // it has ended the program
  } catch (const ScaleFault&) {
    return;
  }
  undoesAndRedoesAll(world, first);
  if (isSaved) comesBack(world);
}

QList<QByteArray> seeds() {
  QList<QByteArray> inputs;
  std::mt19937 random(71);
  for (int length : {8, 20, 40, 80, 160, 320}) {
    QByteArray input;
    for (int i = 0; i < length; ++i) input += static_cast<char>(random() % 256);
    inputs << input << '\0' + input.mid(1);
  }
  return inputs;
}

QList<QByteArray> words() {
  return {};
}

}  // namespace

const Target kDesigner = {"designer", 1024, run, seeds, words};

}  // namespace veneerer::fuzz
