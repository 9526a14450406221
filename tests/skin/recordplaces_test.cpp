#include "skin/recordplaces.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QSet>

#include "design/design.h"
#include "elements/button.h"
#include "records/coverfile.h"
#include "records/layoutwriter.h"
#include "skin/catalogue.h"

namespace veneerer {
namespace {

const QString kCovers = QStringLiteral("Ten.cov");

QMap<QString, QList<QByteArray>> filesOf(State& state) {
  QMap<QString, QList<QByteArray>> files;
  const auto add = [&](const QString& name, const Layout& layout) {
    files.insert(name, composeRecords(layout).split('\n'));
  };
  for (const SaveEntry& entry : saveOrder()) {
    const Layout layout = entry.layout(state);
    add(savedName(entry, layout), layout);
  }
  add(kCovers, coverFile(state, kCovers, state.globals.LastCoverIndex->value()));
  return files;
}

QSet<QString> changedLines(const QMap<QString, QList<QByteArray>>& before,
                           const QMap<QString, QList<QByteArray>>& after) {
  QSet<QString> changed;
  for (auto file = before.cbegin(); file != before.cend(); ++file)
    for (qsizetype i = 0; i < file->size(); ++i)
      if (file->at(i) != after[file.key()].at(i))
        changed.insert(QStringLiteral("%1:%2").arg(file.key()).arg(i + 1));
  return changed;
}

// What a changed property does to the files of a save is the whole truth about its places.
TEST(RecordPlaces, AreTheLinesThatASaveChanges) {
  State state;
  applyBuiltInDesign(state);
  Form1& form1 = state.form1;
  const struct {
    Element& element;
    Property property;
    Value value;
    int lines;  ///< to be changed
  } cases[] = {
      {*form1.Label39, Property::FontSize, 31.0f, 2},              // two files hold it
      {form1.lvButtons_H42[3], Property::Left, 77.0f, 1},          // written and never read
      {form1.lvButtons_H4[1], Property::Height, 77.0f, 1},         // behind a version's number
      {form1.Label9[4], Property::ForeColor, Colour(0x1234), 1},   // of a cover in use
      {form1.Label9[20], Property::ForeColor, Colour(0x1234), 0},  // of one that isn't
      {state.form4.Text1[0], Property::Text, QStringLiteral("1111"), 1},
      {*state.names.ofButtons(form1.lvButtons_H6).find(3), Property::Name,
       StoredValue(QStringLiteral("\\images\\x.bmp")), 1},
      {form1.Picture1[4], Property::BackColor, Colour(0x1234), 0},
  };
  for (const auto& c : cases) {
    const auto before = filesOf(state);
    QSet<QString> told;
    for (const RecordPlace& place : writtenPlaces(state, kCovers).of(c.element))
      if (place.property == c.property) told.insert(QStringLiteral("%1:%2").arg(place.file).arg(place.line));
    ASSERT_TRUE(c.element.set(c.property, c.value)) << c.element.key().toStdString();
    EXPECT_EQ(told, changedLines(before, filesOf(state))) << c.element.key().toStdString();
    EXPECT_EQ(told.size(), c.lines) << c.element.key().toStdString();
  }
}

TEST(RecordPlaces, OfSeveralThatAreReadTheLastOneDecides) {
  State state;
  applyBuiltInDesign(state);
  const RecordPlaces places = writtenPlaces(state);
  EXPECT_EQ(places.of(*state.form1.Label39, Property::FontSize)->file, QStringLiteral("search_Choice.ini"));
  // Its twin is written for the jukebox alone.
  EXPECT_EQ(places.of(state.form1.lvButtons_H1[0], Property::Left)->file, QStringLiteral("menu.ini"));
  EXPECT_EQ(places.of(state.form1.lvButtons_H6[3], Property::Picture),
            (RecordPlace{QStringLiteral("search.ini"), 52, Property::Picture}));
}

}  // namespace
}  // namespace veneerer
