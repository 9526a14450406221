// The manual's table of what the tools reach, held against the tools.
#include <QMap>

#include "canvas/description.h"
#include "canvas/sections.h"
#include "support/files.h"
#include "tools/service.h"
#include "toolsfixture.h"

namespace veneerer {

class ReachTest : public ToolsTest {
protected:
  /// The letters of the controls that serve the Section.
  static std::string letters(const State& state, const Section& section,
                             const QList<std::pair<QChar, const Element*>>& controls) {
    QString found;
    for (const auto& [letter, control] : controls)
      if (servesSection(state, *control, section)) found += letter;
    return found.toStdString();
  }
  QList<std::pair<QChar, const Element*>> fields() const {
    return {{'C', &*form6.Text1},  {'Z', &form6.Text3[0]}, {'S', &*form6.Combo1},
            {'G', &*form6.Combo4}, {'T', &*form6.Text2},   {'K', &*form6.Picture2},
            {'A', &*form6.Combo5}, {'F', &*form6.Text4},   {'N', &*form6.List1}};
  }
  QList<std::pair<QChar, const Element*>> commands() const {
    return {{'Z', &*form6.Command5},   {'S', &*form6.Command3},   {'K', &form6.Command2[0]},
            {'F', &form6.Command1[0]}, {'N', &form6.Command4[0]}, {'A', &*form6.Command11},
            {'M', &form6.Command6[0]}, {'L', &form6.Command8[0]}, {'D', &form6.Command9[0]},
            {'G', &*form6.Command13},  {'P', &*form6.Command7}};
  }
  /// The rows of the page by the number of their Section.
  static QMap<int, QStringList> rows() {
    QMap<int, QStringList> found;
    const QString page = test::bytesOf(VENEERER_SOURCE_DIR "/docs/manual/reach.md");
    for (const QString& line : page.split('\n')) {
      QStringList cells = line.split('|');
      for (QString& cell : cells) cell = cell.trimmed();
      if (cells.size() == 9 && cells[1].toInt() > 0) found.insert(cells[1].toInt(), cells);
    }
    return found;
  }
};

TEST_F(ReachTest, IsToldAsItIs) {
  const QMap<int, QStringList> told = rows();
  EXPECT_EQ(told.size(), static_cast<qsizetype>(sections().size()));
  for (const Section& section : sections()) {
    const QStringList row = told.value(section.number, QStringList(9));
    const Family& family = section.family(state);
    const QString name = QString(row[2]).remove('`').section('.', -1);
    EXPECT_EQ(name, family.name()) << section.number;
    EXPECT_EQ(row[3].toInt(), static_cast<int>(family.members().size())) << section.number;
    EXPECT_EQ(row[6].toStdString(), letters(state, section, fields())) << section.number;
    EXPECT_EQ(row[7].toStdString(), letters(state, section, commands())) << section.number;
  }
}

}  // namespace veneerer
