// The design that is there ahead of any Skin. Which members of a family stand in which container is told by
// containers.txt, a line for each run of members.
#include "design/design.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>

#include "support/designchecks.h"
#include "support/files.h"
#include "support/valuetexts.h"

namespace veneerer {
namespace {

using test::failing;

QString containersOf(const Family& family) {
  QString lines;
  const auto& members = family.members();
  for (std::size_t first = 0, next = 1; first < members.size(); first = next, ++next) {
    const Element* container = members[first]->container();
    while (next < members.size() && members[next]->container() == container) ++next;
    const int from = members[first]->index();
    lines += family.name();
    if (from >= 0) lines += QStringLiteral("(%1-%2)").arg(from).arg(members[next - 1]->index());
    lines += ": " + (container ? container->key() : "nothing") + '\n';
  }
  return lines;
}

// A family with a sum of all that its members hold.
QString sumOf(const Family& family) {
  QCryptographicHash sum(QCryptographicHash::Sha1);
  for (const Element* element : family.members())
    for (const PropertyDefault& each : propertiesOf(element->kind()))
      sum.addData((test::textOf(element->get(each.property)) + '\n').toUtf8());
  return family.members().front()->key() + ' ' + sum.result().toHex().left(8) + '\n';
}

class BuiltInDesign : public testing::Test {
protected:
  BuiltInDesign() { applyBuiltInDesign(state); }

  State state;
  Form1& form = state.form1;
};

TEST_F(BuiltInDesign, PutsEveryElementIntoItsContainer) {
  QString lines;
  for (const Family* family : form.families()) lines += containersOf(*family);
  EXPECT_EQ(lines.toStdString(),
            test::bytesOf(VENEERER_SOURCE_DIR "/tests/design/containers.txt").toStdString());
}

// A Skin without a file shows what stands here: a family in another dress is a change for everybody. Such a
// one that is wanted gets its new sum, which the failure tells.
TEST_F(BuiltInDesign, DressesEachFamilyAsEver) {
  QString told;
  for (const Window* window : state.windows())
    for (const Family* family : window->families()) told += sumOf(*family);
  EXPECT_EQ(told.toStdString(), test::bytesOf(VENEERER_SOURCE_DIR "/tests/design/sums.txt").toStdString());
}

TEST_F(BuiltInDesign, KeepsTheGivenPanelsAndEverythingElseInside) {
  for (int i : {14, 15, 17, 18, 19, 20, 21, 22, 23, 24, 25, 27, 29})
    EXPECT_EQ(test::rectOf(form.Picture1[i]), QRectF(2400, 1200, 9735, 7815)) << i;
  EXPECT_EQ(test::rectOf(form.Picture1[28]), QRectF(2400, 1200, 9975, 7815));
  EXPECT_EQ(test::rectOf(form.Picture1[16]), QRectF(9000, 9120, 3015, 4575));
  const auto isGivenPanel = [&](const Element& e) {
    return e.family() == &form.Picture1 && e.index() >= 14 && e.index() != 26;
  };
  EXPECT_EQ(failing(form, [&](const Element& e) { return isGivenPanel(e) || test::keepsInside(e); }), "");
}

TEST_F(BuiltInDesign, IsReadable) {
  EXPECT_EQ(failing(form, test::isReadable), "");
  EXPECT_EQ(failing(form, test::showsWholeText), "");
  // A genre's number of albums stands on the ground of its name.
  EXPECT_EQ(test::overlaps(form, {"Label20+Label59"}), "");
}

TEST_F(BuiltInDesign, ShowsTheMainScreenAlone) {
  for (int i = 0; i < 30; ++i) EXPECT_EQ(form.Picture1[i].isVisible(), i == 0) << i;
  EXPECT_FALSE(form.Picture12[0].isVisible());
  EXPECT_FALSE(form.Picture23->isVisible());
}

}  // namespace
}  // namespace veneerer
