// What each field and command of Form6 changes, for every Section: a tool that reaches an element too many or
// too few shows here, wherever its table is at fault.
//
// A paragraph of effects.txt is a control. Its lines are the Sections that it does the same for, by their
// numbers, and the elements of the canvas, or samples of Form6, that change, with their properties. A Section
// stands twice, as "22:0" and "22:27", where another element in hand changes others. "The one in hand" is the
// one clicked last.
#include "support/effects.h"

#include <QMap>

#include "canvas/sections.h"
#include "tools/colourtools.h"
#include "toolsfixture.h"

namespace veneerer {

class EffectsTest : public ToolsTest {
protected:
  using Act = test::Effects::Act;
  using Acts = QList<std::pair<QString, Act>>;

  // What would hide an effect: covers out of use, buttons of the plainest shape, a row that stands where
  // the title does.
  EffectsTest() {
    state.globals.LastCoverIndex->setValue(6);
    for (const Family* family : form1.families())
      for (Element* element : family->members())
        if (element->has(Property::ButtonShape)) element->set(Property::ButtonShape, 4);
    for (Element* row : form1.Label30.members()) row->setTop(row->top() + 7);
  }

  Acts fields() {
    Acts acts;
    for (TextBox* field :
         {&*form6.Text1, &form6.Text3[0], &form6.Text3[1], &*form6.Text4, &form6.Text9[0], &form6.Text9[1]})
      acts << std::pair(field->key(), [field] { field->setText("41"); });
    for (ComboBox* list : {&*form6.Combo1, &*form6.Combo2, &*form6.Combo4, &*form6.Combo5})
      acts << std::pair(list->key(), [list] { list->select(1); });
    acts << std::pair(form6.List1->key(), [this] { form6.List1->select(2); });
    return acts;
  }

  /// For each of the colours that Option1 stands for.
  Acts colours() {
    Acts acts;
    for (int option = 0; option < 3; ++option) {
      const auto add = [&](const Element& control, const Act& act) {
        acts << std::pair(QStringLiteral("%1 with Option1(%2)").arg(control.key()).arg(option), [=, this] {
          choose(form6.Option1[option]);
          act();
        });
      };
      add(*form6.Text2, [this] { form6.Text2->setText("4711"); });
      add(*form6.Picture2, [this] { takeColour(state, Colour(4711)); });
      add(form6.Command2[0], [this] { click(form6.Command2[0]); });
      add(form6.Command2[1], [this] { click(form6.Command2[1]); });
    }
    return acts;
  }

  Acts commands() {
    Acts acts;
    for (CommandButton* command :
         {&form6.Command1[0], &form6.Command1[1], &*form6.Command3, &form6.Command4[0], &form6.Command4[1],
          &*form6.Command5, &form6.Command6[0], &form6.Command6[1], &*form6.Command7, &form6.Command8[0],
          &form6.Command8[1], &form6.Command9[0], &form6.Command9[1], &*form6.Command11, &*form6.Command12,
          &*form6.Command13})
      acts << std::pair(command->key(), [this, command] { click(*command); });
    acts << std::pair(form6.Command14->key(), [this] {
      world.dialogs.fonts.enqueue(FontChoice{"Times", 41, true, true, true, true});
      click(*form6.Command14);
      world.dialogs.fonts.clear();
    });
    return acts;
  }

  /// The paragraph of a control.
  QString paragraph(const QString& name, const Act& act) {
    QMap<QString, QStringList> sectionsOf;  // by the effect
    QStringList effects;                    // in the order of the Sections
    const auto add = [&](const QString& section, const QString& effect) {
      if (effect.isEmpty()) return;
      if (!sectionsOf.contains(effect)) effects << effect;
      sectionsOf[effect] << section;
    };
    for (const Section& section : sections()) {
      const int last = std::max(0, section.family(state).members().back()->index());
      const QString ofFirst = effectInHand(section, 0, act);
      const QString ofLast = effectInHand(section, last, act);
      const QString number = QString::number(section.number);
      if (ofFirst == ofLast) {
        add(number, ofFirst);
      } else {
        add(number + ":0", ofFirst);
        add(QStringLiteral("%1:%2").arg(number).arg(last), ofLast);
      }
    }
    QString told = name + '\n';
    for (const QString& effect : effects)
      told += QStringLiteral("  %1  %2\n").arg(sectionsOf[effect].join(' '), effect);
    return told;
  }

private:
  bool isSample(const Element& element) const {
    const Family* family = element.family();
    return family == &form6.Label5 || family == &form6.Label6 || family == &form6.lvButtons_H5;
  }

  // Alone, so that the colours of the element in hand don't follow.
  void choose(OptionButton& option) {
    const ViewsOnly alone(state.board);
    option.select();
  }

  QString effectInHand(const Section& section, int index, const Act& act) {
    current(0);
    fillFields();
    current(section.number, index);
    const test::Effects::Changed changed = effects_.of(
        act, [this](const Element& element) { return &element.window() == &form1 || isSample(element); });
    if (changed.empty()) return {};
    auto first = changed.begin();
    if (first->first != changed.rbegin()->first || first->first != currentElement(state))
      return effects_.told(changed);
    return "the one in hand " + test::Effects::properties(first, changed.end());
  }

  // With what no element of the canvas has. No Section is in hand, so nothing takes it.
  void fillFields() {
    for (TextBox* field : {&*form6.Text1, &form6.Text3[0], &form6.Text3[1], &*form6.Text4, &form6.Text5[0],
                           &form6.Text5[1], &form6.Text6[0], &form6.Text6[1], &form6.Text9[0],
                           &form6.Text9[1], &form6.Text10[0], &form6.Text10[1], &*form6.Text2})
      field->setText("37");
    for (ComboBox* list : {&*form6.Combo1, &*form6.Combo2, &*form6.Combo4, &*form6.Combo5}) list->select(2);
    form6.List1->select(1);
  }

  test::Effects effects_{state};
};

TEST_F(EffectsTest, OfEachControlAreThoseOfTheSystem) {
  const Acts acts = fields() + colours() + commands();
  QString told;
  for (const auto& [name, act] : acts) told += paragraph(name, act) + '\n';
  test::expectParagraphs(told, VENEERER_SOURCE_DIR "/tests/tools/effects.txt");
}

}  // namespace veneerer
