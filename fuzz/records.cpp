// Record files through their layouts. The first line names the file, as "menu.ini"; any other one stands for
// a layout too.
#include <QHash>
#include <algorithm>

#include "comparison/linedifferences.h"
#include "elements/require.h"
#include "fuzz/recordworld.h"
#include "fuzz/skinfiles.h"
#include "fuzz/target.h"
#include "records/layoutwriter.h"
#include "skin/catalogue.h"

namespace veneerer::fuzz {

namespace {

QHash<QByteArray, MakeLayout> layoutsByName() {
  State state;
  QHash<QByteArray, MakeLayout> layouts;
  for (const SaveEntry& entry : saveOrder())
    layouts.insert(entry.layout(state).fileName().toLatin1(), entry.layout);
  return layouts;
}

MakeLayout layoutNamed(const QByteArray& name) {
  static const QHash<QByteArray, MakeLayout> layouts = layoutsByName();
  if (const MakeLayout layout = layouts.value(name)) return layout;
  unsigned sum = 0;
  for (const char c : name) sum += static_cast<unsigned char>(c);
  return saveOrder()[sum % saveOrder().size()].layout;
}

// Its lines told apart as the panel that compares does it.
void comparesWith(RecordWorld& world, const Layout& layout, const QByteArray& bytes) {
  Loading loading = world.loading();
  const RecordText before = readText(layout, bytes, loading);
  const RecordText after = writtenText(layout);
  Differences differences;
  addLineDifferences(differences, layout.fileName(), before, after);
  require(differences.isEmpty() == (before.bytes == after.bytes), "files differ in lines or not at all");
}

// What a check has nothing to say about comes back as it was saved.
void comesBack(RecordWorld& world, const Layout& layout) {
  const QByteArray saved = composeRecords(layout);
  const bool isFine = world.check(layout, saved).isEmpty();
  const QByteArray again = composeRecords(layout);
  require(!isFine || world.reads(layout, again), "what a check finds nothing about can be read");
  require(!isFine || composeRecords(layout) == again, "what a check finds nothing about comes back");
}

void run(const QByteArray& input) {
  const qsizetype end = std::max<qsizetype>(0, input.indexOf('\n'));
  const QByteArray bytes = input.mid(end + 1);
  RecordWorld world;
  const Layout layout = layoutNamed(input.left(end))(world.state());
  if (layout.isEmpty()) return;
  const bool isRead = world.reads(layout, bytes);
  comparesWith(world, layout, bytes);
  const Findings findings = world.check(layout, bytes);
  const bool hasError =
      std::ranges::any_of(findings, [](const Finding& each) { return each.kind == FindingKind::Error; });
  require(isRead || hasError, "a check finds an error where a load fails");
  comesBack(world, layout);
}

QList<QByteArray> seeds() {
  QList<QByteArray> inputs;
  const test::Files files = shippedFiles({QStringLiteral("*.ini")}, 12'000);
  for (auto file = files.begin(); file != files.end(); ++file)
    inputs << file.key().section(u'/', -1).toLatin1() + '\n' + *file;
  return inputs;
}

QList<QByteArray> words() {
  QList<QByteArray> found{"\r\n",
                          "\"\"",
                          ",",
                          "#TRUE#",
                          "#FALSE#",
                          "#NULL#",
                          "#ERROR 5#",
                          "\\images\\a.png",
                          "\\IMAGES\\B.GIF",
                          "INI Version\r\n",
                          " 1 \r\n",
                          "1E+38",
                          "-32769",
                          "2147483648",
                          "||",
                          "\x1A",
                          "-1",
                          "\xEF\xBB\xBF",
                          "\x81"};
  for (const QByteArray& name : layoutsByName().keys()) found << name + '\n';
  return found;
}

}  // namespace

const Target kRecords = {"records", 16384, run, seeds, words};

}  // namespace veneerer::fuzz
