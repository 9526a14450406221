// Undo and redo are inverse, whatever was done by whatever hand.
#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "laws/law.h"
#include "support/shippedskins.h"

namespace veneerer {
namespace {

using test::Dice;

class Undo : public test::SkinFixture {
protected:
  void SetUp() override {
    test::copyTwoShippedSkins(root.path());
    start();
  }

  void doAnything(Dice dice) {
    Window* const windows[] = {&state().form1, &state().form1, &state().form2,
                               &state().form4, &state().form5, &state().form6};
    Window* window = dice.oneOf(windows);
    Element& element = *dice.oneOf(dice.oneOf(window->families())->members());
    if (window == &form1())
      drag(element, dice);
    else
      act(element, dice);
    if (dice.below(6) == 0) designer->history().undo();
    if (dice.below(12) == 0) designer->history().redo();
  }

  void drag(Element& element, Dice& dice) {
    const auto way = [&] { return static_cast<float>(dice.between(-300, 300)); };
    designer->press(element, 0, 0, MouseButton::Left);
    for (int i = 0; i < 3; ++i) designer->move(element, way(), way(), MouseButton::Left);
    if (dice.below(2)) designer->click(element);
  }

  void act(Element& element, Dice& dice) {
    // It lists the cover files, which follow the disk.
    if (&element == &*form4().Command1) return;
    static const char* const kTexts[] = {"0", "150", "1200", "-30", "", "Two||lines", "#102030"};
    world.dialogs.colours.enqueue(dice.below(0xFFFFFF));
    world.dialogs.fonts.enqueue(FontChoice{QStringLiteral("DejaVu Sans"), 11, true, false, false, false});
    if (auto* list = dynamic_cast<RowList*>(&element); list && !list->list().isEmpty())
      designer->choose(*list, dice.below(int(list->list().size())));
    else if (element.kind() == Kind::TextBox)
      designer->type(element, QString::fromLatin1(dice.oneOf(kTexts)));
    else if (element.kind() == Kind::CheckBox)
      designer->tick(cast<CheckBox>(element), dice.below(2));
    else
      designer->click(element);
  }
};

TEST_F(Undo, UndoesAndRedoesAnythingExactly) {
  History& history = designer->history();
  test::tryLaw(30, [&] {
    history.start();
    const test::RestoredState first(state());
    for (const auto number :
         *rc::gen::container<std::vector<std::uint32_t>>(25, rc::gen::arbitrary<std::uint32_t>()))
      doAnything(Dice(number));
    history.redoAll();
    const test::RestoredState last(state());
    history.undoAll();
    RC_ASSERT(first.difference(test::RestoredState(state())) == "");
    history.redoAll();
    RC_ASSERT(last.difference(test::RestoredState(state())) == "");
  });
}

}  // namespace
}  // namespace veneerer
