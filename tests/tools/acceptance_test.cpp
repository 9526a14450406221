// Each control is played on every Section: it must change something for exactly those that accepted.txt
// names.
#include <QMap>
#include <functional>

#include "support/files.h"
#include "tools/service.h"
#include "toolsfixture.h"

namespace veneerer {

class AcceptanceTest : public ToolsTest {
protected:
  void expectAccepted(const Element& control, const std::function<void()>& action) {
    EXPECT_EQ(accepted(action), toldOf(control.key()).toStdString()) << control.key().toStdString();
  }
  static QString toldOf(const QString& key) {
    const QString told = test::bytesOf(VENEERER_SOURCE_DIR "/tests/tools/accepted.txt");
    return told.section('\n' + key + ": ", 1).section('\n', 0, 0);
  }
  /// Both fields of a place are for the same Sections, and a field that only a command reads for those of the
  /// command; one of them is written down.
  static QString acceptedAs(const QString& key) {
    static const QMap<QString, QString> others{
        {"Form6.Text9(1)", "Form6.Text9(0)"},    {"Form6.Text5(0)", "Form6.Command6(0)"},
        {"Form6.Text5(1)", "Form6.Command6(1)"}, {"Form6.Text6(0)", "Form6.Command9(0)"},
        {"Form6.Text10(0)", "Form6.Command13"},  {"Form6.Text10(1)", "Form6.Command13"}};
    return others.value(key, key);
  }
  void expectAccepted(std::initializer_list<Element*> commands) {
    for (Element* command : commands) expectAccepted(*command, [=, this] { click(*command); });
  }
  void expectAccepted(std::initializer_list<TextBox*> fields) {
    for (TextBox* field : fields)
      expectAccepted(*field, [=, this] { field->setText(QString::number(++typed_)); });
  }
  /// Chooses a row that is neither the first nor the one before.
  void expectAccepted(std::initializer_list<RowList*> lists) {
    for (RowList* list : lists) expectAccepted(*list, [=] { list->select(list->listIndex() == 1 ? 2 : 1); });
  }

private:
  /// The Sections for which the action changes an element of the canvas or a sample.
  std::string accepted(const std::function<void()>& action) {
    bool reacted = true;
    const Attachment watching = state.board.watch([&](const Change& change) {
      reacted = reacted || &change.element.window() == &form1 || isSample(change.element);
    });
    QStringList sections;
    for (int section = 0; section <= 191; ++section) {
      if (std::exchange(reacted, false)) spread();
      current(section, 1);
      reacted = false;
      action();
      if (reacted) sections.append(QString::number(section));
    }
    return sections.join(' ').toStdString();
  }

  bool isSample(const Element& element) const {
    const Family* family = element.family();
    return family == &form6.Label5 || family == &form6.Label6 || family == &form6.lvButtons_H5;
  }

  int typed_ = 1000;  ///< a text that no field holds yet
};

TEST_F(AcceptanceTest, TextFields) {
  expectAccepted({&*form6.Text1, &form6.Text3[0], &form6.Text3[1], &form6.Text9[0], &*form6.Text4});
  form6.Option1[1].select();
  expectAccepted({&*form6.Text2});
}

TEST_F(AcceptanceTest, Lists) {
  expectAccepted(std::initializer_list<RowList*>{&*form6.Combo1, &*form6.Combo2, &*form6.Combo4,
                                                 &*form6.Combo5, &*form6.List1});
}

TEST_F(AcceptanceTest, GeometryCommands) {
  type(form6.Text3[0], "7");
  type(form6.Text5[0], "7");
  type(form6.Text5[1], "7");
  // Section 54 is accepted by the shifts too, but it has no range to shift.
  for (auto* commands : {&form6.Command6, &form6.Command8, &form6.Command9})
    expectAccepted({&(*commands)[0], &(*commands)[1]});
  expectAccepted({&*form6.Command5, &*form6.Command12, &*form6.Command13, &*form6.Command7});
}

// Number 7 is reserved and names no element.
TEST_F(AcceptanceTest, StylesColoursAndFonts) {
  form6.Combo1->select(5);
  form6.Combo2->select(5);
  form6.Combo5->select(1);
  form6.List1->select(1);
  form6.Option1[1].select();
  type(*form6.Text2, "7");
  type(*form6.Text4, "99");
  expectAccepted({&*form6.Command3, &form6.Command2[0], &*form6.Picture2, &form6.Command1[0],
                  &form6.Command4[0], &*form6.Command11});
  expectAccepted(*form6.Command14, [&] {
    world.dialogs.fonts.enqueue(FontChoice{"Times", 40});
    click(*form6.Command14);
  });
}

TEST_F(AcceptanceTest, WhatIsToldToServeASectionDoes) {
  for (const Family* family : form6.families())
    for (const Element* control : family->members()) {
      if (!needsSection(state, *control)) continue;
      QStringList told;
      for (const Section& section : sections())
        if (servesSection(state, *control, section)) told.append(QString::number(section.number));
      EXPECT_EQ(told.join(' ').toStdString(), toldOf(acceptedAs(control->key())).toStdString())
          << control->key().toStdString();
    }
}

TEST_F(AcceptanceTest, AToolTipTellsOfWhatIsInHand) {
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
