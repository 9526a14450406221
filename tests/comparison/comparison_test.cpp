// What is told to differ, held against the bytes of a real save.
#include "comparison/comparison.h"

#include <QSet>
#include <cstring>
#include <random>

#include "comparison/recordtext.h"
#include "designer/skinfixture.h"
#include "records/recorderror.h"
#include "skin/catalogue.h"
#include "skin/recordplaces.h"
#include "skin/skinsaver.h"

namespace veneerer {
namespace {

using test::Files;
/// A value of that property's type that is likely another one, with all that makes lines odd.
Value otherValue(const Value& value, std::mt19937& random) {
  const QStringList texts{"",  "a", "TRACK, 7", "\"q\"", " blank ", "caf\u00e9 \u20ac", "12", "Two\nlines\r",
                          "\r"};
  const auto number = [&](int most) { return static_cast<int>(random() % static_cast<std::size_t>(most)); };
  if (std::holds_alternative<QString>(value)) return texts[number(static_cast<int>(texts.size()))];
  if (std::holds_alternative<StoredValue>(value)) return StoredValue(texts[number(8)]);
  if (std::holds_alternative<float>(value)) return static_cast<float>(number(4000)) / 8;
  if (std::holds_alternative<Colour>(value)) return Colour(number(0x1000000));
  if (std::holds_alternative<std::int32_t>(value)) return number(3);
  return value;
}

/// "menu.ini:12" for each line whose bytes differ, by a split of its own.
QSet<QString> differingLines(const Files& before, const Files& after) {
  const auto split = [](const QByteArray& bytes) {
    QList<QByteArray> lines;
    const char* const all = bytes.constData();
    for (qsizetype begin = 0; begin < bytes.size();) {
      auto end = begin + static_cast<qsizetype>(std::strcspn(all + begin, "\r\n"));
      end += all[end] == '\r' && all[end + 1] == '\n' ? 2 : all[end] ? 1 : 0;
      lines.append(bytes.mid(begin, end - begin));
      begin = end;
    }
    return lines;
  };
  QSet<QString> differing;
  for (auto file = after.cbegin(); file != after.cend(); ++file) {
    if (before.value(file.key()) == *file) continue;
    const QList<QByteArray> was = split(before.value(file.key()));
    const QList<QByteArray> is = split(*file);
    for (qsizetype i = 0; i < std::max(was.size(), is.size()); ++i)
      if (i >= was.size() || i >= is.size() || was[i] != is[i])
        differing.insert(QStringLiteral("%1:%2").arg(file.key()).arg(i + 1));
  }
  return differing;
}

QSet<QString> toldLines(const Differences& differences) {
  QSet<QString> told;
  for (const Difference& difference : differences)
    told.insert(QStringLiteral("%1:%2").arg(difference.file).arg(difference.line));
  return told;
}

class Comparison : public test::SkinFixture {
protected:
  Comparison() {
    copySkin("Copper_Lounge(1024x768)", "S");
    start();
    designer->saveTo(designer->skinFolder());
  }

  void copySkin(const QString& from, const QString& to) {
    const Files files = test::filesBelow(QStringLiteral(VENEERER_SOURCE_DIR "/Skins/") + from);
    for (auto file = files.cbegin(); file != files.cend(); ++file)
      test::writeBytes(root.filePath("Skins/" + to + '/' + file.key()), *file);
  }
  Differences unsaved() { return savedDifferences(state(), designer->skinFolder()); }
  Differences others() {
    return skinDifferences(SkinFolder(path({})), SkinFolder(root.filePath("Skins/T")), Screen());
  }
  void writeOther(const QString& name, const QByteArray& bytes) {
    test::writeBytes(root.filePath("Skins/T/" + name), bytes);
  }
  static QStringList texts(const Differences& differences) {
    QStringList texts;
    for (const Difference& d : differences)
      texts << QStringLiteral("%1:%2:%3:%4")
                   .arg(d.file)
                   .arg(d.line)
                   .arg(d.element)
                   .arg(static_cast<int>(d.kind));
    return texts;
  }
};

TEST_F(Comparison, NamesExactlyTheLinesThatASaveChanges) {
  ASSERT_TRUE(unsaved().isEmpty());
  std::vector<std::pair<Element*, Property>> slots;
  const RecordPlaces places = writtenPlaces(state());
  for (Window* window : std::initializer_list<Window*>{&form1(), &form4(), &form6(), &state().names})
    for (Family* family : window->families())
      for (Element* element : family->members())
        for (const RecordPlace& place : places.of(*element)) slots.emplace_back(element, place.property);
  ASSERT_GT(slots.size(), 3000u);
  std::mt19937 random(20240607);
  Files before = test::filesBelow(path({}), {"*.ini"});
  for (int edit = 0; edit < 100; ++edit) {
    SCOPED_TRACE(edit);
    for (auto changes = 1 + random() % 12; changes > 0; --changes) {
      const auto [element, property] = slots[random() % slots.size()];
      if (property != Property::Picture) element->set(property, otherValue(element->get(property), random));
    }
    const Differences told = unsaved();
    Files after;
    for (const NewFile& file : composedRecords(state())) after.insert(file.name, file.bytes);
    const QSet<QString> changed = differingLines(before, after);
    EXPECT_EQ(toldLines(told), changed);
    EXPECT_EQ(told.size(), changed.size()) << "no line is told twice";
    if (edit % 5 != 4) continue;
    designer->saveTo(designer->skinFolder());
    before = test::filesBelow(path({}), {"*.ini"});
    EXPECT_EQ(differingLines(before, after), QSet<QString>()) << "that is what a save writes";
    EXPECT_TRUE(unsaved().isEmpty());
  }
}

// A line of each value that a save writes is about an element that stands there.
TEST_F(Comparison, KnowsWhatEachLineIsAbout) {
  QMultiHash<QString, QString> holders;  // by file and line
  const auto about = [](const QString& key, Property property) { return key + ' ' + propertyName(property); };
  const auto place = [](const QString& file, int line) {
    return QStringLiteral("%1:%2").arg(file).arg(line);
  };
  const RecordPlaces places = writtenPlaces(state());
  std::vector<Window*> windows = state().windows();
  windows.insert(windows.end(), {&state().names, &state().globals});
  for (Window* window : windows)
    for (Family* family : window->families())
      for (Element* element : family->members())
        for (const RecordPlace& at : places.of(*element))
          holders.insert(place(at.file, at.line), about(element->key(), at.property));
  for (const SaveEntry& entry : saveOrder()) {
    const Layout layout = entry.layout(state());
    for (const auto& [line, subject] : writtenText(layout).subjects) {
      const QString at = place(savedName(entry, layout), line);
      if (!subject.property) continue;
      EXPECT_TRUE(holders.contains(at, about(subject.element, *subject.property))) << at.toStdString();
      holders.remove(at);
    }
  }
  EXPECT_EQ(holders.keys(), QStringList());
}

TEST_F(Comparison, TellsElementPropertyAndBothTexts) {
  form1().Label16[3].setLeft(form1().Label16[3].left() + 15);
  form1().lvButtons_H1[2].setCaption("Mine");
  for (const Difference& d : unsaved()) {
    ASSERT_EQ(d.kind, Difference::Kind::Line);
    if (d.element == "Form1.Label16(3)") {
      EXPECT_EQ(d.property, Property::Left);
      EXPECT_EQ(d.after->text.trimmed().toFloat(), form1().Label16[3].left());
      EXPECT_EQ(d.before->text.trimmed().toFloat(), form1().Label16[3].left() - 15);
    } else {
      EXPECT_TRUE(d.element.isEmpty() || d.element == "Form1.lvButtons_H1(2)") << d.element.toStdString();
      EXPECT_TRUE(d.after->text.contains("Mine"));
    }
  }
  EXPECT_FALSE(unsaved().isEmpty());
}

TEST_F(Comparison, LineEndsAndAFileCutShortAreDifferencesToo) {
  const QByteArray menu = bytes("menu.ini");
  const qsizetype lines = menu.count('\n');
  QByteArray feeds = menu;
  write("menu.ini", feeds.replace("\r\n", "\n"));
  const Differences ends = unsaved();
  ASSERT_EQ(ends.size(), lines);
  EXPECT_EQ(ends.first().before->text, ends.first().after->text);
  EXPECT_EQ(ends.first().before->end, LineEnd::Feed);
  EXPECT_EQ(ends.first().after->end, LineEnd::ReturnFeed);

  write("menu.ini", menu.left(menu.indexOf('\n') + 1));
  EXPECT_EQ(unsaved().size(), lines - 1);
  EXPECT_FALSE(unsaved().first().before);
  write("menu.ini", menu + "more\r\n\x1A");
  const Differences more = unsaved();
  ASSERT_EQ(more.size(), 2);
  EXPECT_EQ(more.first().before->text, "more");
  EXPECT_FALSE(more.first().after);

  QFile::remove(path("menu.ini"));
  EXPECT_EQ(
      texts(unsaved()),
      QStringList{QStringLiteral("menu.ini:0::%1").arg(static_cast<int>(Difference::Kind::OnlyInSecond))});
}

TEST_F(Comparison, OfTwoSkinsTellsLinesPicturesAndWhatOneHasAlone) {
  write("sub/same.bmp", "same");
  const Files files = test::filesBelow(path({}));
  for (auto file = files.cbegin(); file != files.cend(); ++file) writeOther(file.key(), *file);
  EXPECT_TRUE(others().isEmpty());

  write("sub/alone.txt", "1");
  write(".menu.ini.999999999-0123456789abcdef.saving", "left over");
  writeOther("other.bmp", "2");
  writeOther("sub/same.bmp", "SAME");
  form1().Label39->setFontSize(31);
  designer->saveTo(SkinFolder(root.filePath("Skins/T")));
  const auto kind = [](Difference::Kind k) { return QString::number(static_cast<int>(k)); };
  const QStringList told = texts(others());
  EXPECT_TRUE(told.contains("sub/alone.txt:0::" + kind(Difference::Kind::OnlyInFirst)));
  EXPECT_TRUE(told.contains("other.bmp:0::" + kind(Difference::Kind::OnlyInSecond)));
  EXPECT_TRUE(told.contains("sub/same.bmp:0::" + kind(Difference::Kind::Content)));
  EXPECT_EQ(told.filter("Form1.Label39").size(), 2) << "two files hold its size";
  EXPECT_EQ(told.size(), 5) << told.join('\n').toStdString();
}

TEST_F(Comparison, AFileThatDoesntReadIsComparedAsText) {
  const Files files = test::filesBelow(path({}), {"*.ini"});
  for (auto file = files.cbegin(); file != files.cend(); ++file) writeOther(file.key(), *file);
  QByteArray broken = bytes("menu.ini");
  broken.replace(broken.indexOf("\r\n") + 2, 0, "\"\r\n");
  write("menu.ini", broken);
  writeOther("menu.ini", "x\r\ny\r\nz");
  write("a.cov", "no number");
  writeOther("a.cov", QByteArray(3000, '\n'));
  int ofMenu = 0;
  for (const Difference& d : others()) {
    if (d.kind != Difference::Kind::Line) continue;
    EXPECT_TRUE(d.file == "menu.ini" || d.file == "a.cov") << d.file.toStdString();
    if (d.file != "menu.ini") continue;
    EXPECT_EQ(d.element, "") << "neither side knows its lines";
    ++ofMenu;
  }
  EXPECT_EQ(ofMenu, broken.count('\n'));

  QFile::remove(path("queue.ini"));
  ASSERT_TRUE(QFile::link("/dev/zero", path("queue.ini")));
  EXPECT_THROW(others(), RecordError);
}

TEST_F(Comparison, IsBounded) {
  writeOther("a.cov", QByteArray(2 * kMostDifferences, '\n'));
  write("a.cov", "\r");
  const Differences differences = others();
  EXPECT_EQ(differences.size(), kMostDifferences + 1);
  EXPECT_EQ(differences.last().kind, Difference::Kind::Further);
}

}  // namespace
}  // namespace veneerer
