// Cover files.
#include "elements/require.h"
#include "fuzz/recordworld.h"
#include "fuzz/skinfiles.h"
#include "fuzz/target.h"
#include "recolouring/storedlines.h"
#include "records/coverfile.h"
#include "records/layoutwriter.h"
#include "records/textlines.h"

namespace veneerer::fuzz {

namespace {

const QString kName = QStringLiteral("a.cov");

int linesOf(const QByteArray& bytes) {
  int lines = 0;
  for (TextLines each(bytes); !each.atEnd(); each.next()) ++lines;
  return lines;
}

void recolours(const SkinFolder& folder, const QByteArray& bytes) {
  StoredLines lines(folder, {});
  const auto made = lines.recoloured(kName, bytes, {{{255, Colour(0x102030)}}, {40, -20, 30}});
  require(!made || linesOf(*made) == linesOf(bytes), "recoloured a file has the same lines");
}

void comesBack(RecordWorld& world) {
  const int last = world.state().globals.LastCoverIndex->value();
  require(last >= -1 && last <= 28, "no more covers are told than there are");
  const Layout layout = coverFile(world.state(), kName, last);
  const QByteArray saved = composeRecords(layout);
  require(lastCoverOf(saved) == last, "a saved file holds as many rows as it tells");
  const bool isFine = world.check(layout, saved).isEmpty();
  require(!isFine || composeRecords(layout) == saved, "what a check finds nothing about comes back");
}

void run(const QByteArray& input) {
  RecordWorld world;
  const int last = lastCoverOf(input);
  require(last >= -1 && last < 1000, "a file is asked for a bounded number of rows");
  world.reads(coverFile(world.state(), kName, last), input);
  world.check(coverFile(world.state(), kName, last), input);
  recolours(world.folder(), input);
  comesBack(world);
}

QList<QByteArray> seeds() {
  return shippedFiles({QStringLiteral("*.cov")}, 32'000).values();
}

QList<QByteArray> words() {
  return {"\r\n",
          " 9 \r\n",
          " 28 \r\n",
          "2147483647",
          "\"Album Covers\"\r\n",
          "Album Frames\r\n",
          "Album Title\r\n",
          "Artist Title\r\n",
          "Album Title (Colour and Font)\r\n",
          "Album Year\r\n",
          "Album Genre\r\n",
          ",",
          "#TRUE#",
          "1E+30"};
}

}  // namespace

const Target kCovers = {"covers", 32768, run, seeds, words};

}  // namespace veneerer::fuzz
