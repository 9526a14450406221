// What the windows tell of the Sections that a control serves.
#include "tools/service.h"

#include <QMap>

#include "support/files.h"
#include "toolsfixture.h"

namespace veneerer {

class ServiceTest : public ToolsTest {
protected:
  /// The Sections that the control changes something for.
  static std::string servedBy(const QString& key) {
    const QString all = u'\n' + test::bytesOf(VENEERER_SOURCE_DIR "/tests/tools/effects.txt");
    QMap<int, bool> sections;
    for (const QString& line :
         all.section('\n' + key + '\n', 1).section("\n\n", 0, 0).trimmed().split('\n', Qt::SkipEmptyParts))
      for (const QString& section : line.trimmed().section("  ", 0, 0).split(' '))
        sections.insert(section.section(':', 0, 0).toInt(), true);
    QStringList numbers;
    for (const int section : sections.keys()) numbers << QString::number(section);
    return numbers.join(' ').toStdString();
  }
  /// The effects of a field that only a command reads are those of the command.
  static QString actsAs(const QString& key) {
    static const QMap<QString, QString> others{{"Form6.Text5(0)", "Form6.Command6(0)"},
                                               {"Form6.Text5(1)", "Form6.Command6(1)"},
                                               {"Form6.Text6(0)", "Form6.Command9(0)"},
                                               {"Form6.Text10(0)", "Form6.Command13"},
                                               {"Form6.Text10(1)", "Form6.Command13"},
                                               {"Form6.Text2", "Form6.Text2 with Option1(1)"},
                                               {"Form6.Picture2", "Form6.Picture2 with Option1(1)"},
                                               {"Form6.Command2(0)", "Form6.Command2(0) with Option1(1)"}};
    return others.value(key, key);
  }
};

TEST_F(ServiceTest, WhatIsToldToServeASectionDoes) {
  for (const Family* family : form6.families())
    for (const Element* control : family->members()) {
      if (!needsSection(state, *control)) continue;
      QStringList told;
      for (const Section& section : sections())
        if (servesSection(state, *control, section)) told.append(QString::number(section.number));
      EXPECT_EQ(told.join(' ').toStdString(), servedBy(actsAs(control->key())))
          << control->key().toStdString();
    }
}

TEST_F(ServiceTest, FieldsAreGreyWithoutAUseForThemAndCommandsNever) {
  current(0);
  EXPECT_FALSE(servesWhatIsInHand(state, *form6.Text4));
  EXPECT_TRUE(servesWhatIsInHand(state, *form6.Command11));
  EXPECT_TRUE(servesWhatIsInHand(state, *form6.Picture2));
  EXPECT_TRUE(servesWhatIsInHand(state, *form6.Check1)) << "it asks for no Section";
  current(22, 4);
  EXPECT_TRUE(servesWhatIsInHand(state, *form6.Text4));
  EXPECT_FALSE(servesWhatIsInHand(state, *form6.Text6.find(1)));
}

TEST_F(ServiceTest, AToolTipTellsOfWhatIsInHand) {
  const auto tip = [&](const Element& control) { return toolTipOf(state, control).toStdString(); };
  EXPECT_EQ(tip(*form6.Text9.find(0)),
            "Top of the element in hand, in twips: 1440 to the inch\nIt serves screens; click one");
  form1.lvButtons_H1[2].setCaption("Queue");
  current(1, 2);
  EXPECT_EQ(tip(form6.Text3[0]), "Height of the button, in twips: 1440 to the inch");
  EXPECT_EQ(tip(*form6.Command7), "Take their pictures from all buttons of the family of what is in hand");
  EXPECT_EQ(tip(*form6.Text4),
            "Font size of the element in hand, in points\nIt serves labels, but not Queue (2)");
  EXPECT_EQ(tip(form6.Text5[0]), "By how much Shift X moves, in twips");
  EXPECT_TRUE(tip(form6.Text10[0]).ends_with("but not Queue (2)")) << tip(form6.Text10[0]);
  EXPECT_EQ(tip(form6.Text6[1]), "Has no effect: Space Y takes X Space as well");
}

}  // namespace veneerer
