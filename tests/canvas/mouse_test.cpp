// What a click, a press and a drag do on each family, beside all that no example would find.
//
// A paragraph of mouse.txt is a doing. Its lines are the families for which the same comes of it, where need
// be with the index of the member that differs. Of a drag they tell, for each of four places in a container,
// which ways the element moves.
#include "canvas/canvasinput.h"
#include "support/effects.h"
#include "support/scriptedplatform.h"

namespace veneerer {
namespace {

class Mouse : public testing::Test {
protected:
  Mouse() {
    for (ComboBox* list : {&*state.form6.Combo1, &*state.form6.Combo2, &*state.form6.Combo4})
      list->setRows({"0", "1", "2"});
    for (Window* window : {static_cast<Window*>(&form1), static_cast<Window*>(&state.form6)})
      for (Family* family : window->families())
        for (Element* element : family->members()) setApart(*element);
  }

  /// No two neighbours share a place or a size, and nothing stands yet where a doing may put something.
  static void setApart(Element& element) {
    const float i = static_cast<float>(element.index() + 2);
    element.place(i * 100.5f, i * 60.5f, i * 10, i * 20);
    if (element.has(Property::FontSize)) element.set(Property::FontSize, i);
    if (element.kind() == Kind::Label) cast<Label>(element).setOpaque(false);
    if (element.kind() == Kind::Button) cast<Button>(element).setCaption("own");
  }

  using Tell = std::function<QString(Element&)>;

  QString paragraph(const QString& name, const Tell& tell) {
    QMap<QString, QStringList> families;  // by what comes of it
    QStringList inOrder;
    const auto add = [&](const QString& family, const QString& told) {
      if (!families.contains(told)) inOrder << told;
      families[told] << family;
    };
    for (Family* family : form1.families()) {
      const QString first = tell(*family->members().front());
      const QString last = tell(*family->members().back());
      add(family->name(), first);
      if (first != last)
        add(family->name() + QStringLiteral("(%1)").arg(family->members().back()->index()), last);
    }
    QString told = name + '\n';
    for (const QString& each : inOrder)
      told += QStringLiteral("  %1: %2\n").arg(each, families[each].join(' '));
    return told + '\n';
  }

  /// What the act changes, the element that it is about called "itself".
  QString effectOn(const Element& element, const test::Effects::Act& act) {
    QString told = effects.told(effects.of(act, [](const Element&) { return true; }));
    const QString own = element.index() < 0 ? QString() : QStringLiteral("(%1)").arg(element.index());
    told.replace(element.family()->name() + own + ' ', "itself ");
    return told.isEmpty() ? QStringLiteral("nothing") : told;
  }

  QString click(Element& element) {
    Globals& globals = state.globals;
    globals.SectionNumber = 0;
    globals.ElementIndex = 77;
    const QString effect = effectOn(element, [&] { state.board.click(element); });
    const QString index = globals.ElementIndex == 77 ? "kept" : globals.ElementIndex == 0 ? "0" : "its own";
    return QStringLiteral("%1, index %2").arg(effect, globals.SectionNumber ? index : "kept");
  }

  /// What stands on it and in its tool tip afterwards.
  QString wordsOf(Element& element, const test::Effects::Act& act) {
    QString words = "none";
    effects.of(
        [&] {
          act();
          if (element.kind() == Kind::Label) words = '"' + cast<Label>(element).caption() + '"';
          if (!element.toolTipText().isEmpty()) words += " tip \"" + element.toolTipText() + '"';
        },
        [](const Element&) { return true; });
    return words;
  }

  QString press(Element& element, MouseButton button) {
    const qsizetype asked = world.dialogs.filters.size();
    const QString effect = effectOn(element, [&] { input.press(element, 1, 1, button); });
    return world.dialogs.filters.size() > asked ? effect + ", asks for a picture" : effect;
  }

  /// As "RDLU, RDLU, RDLU, LU" for the four places.
  QString ways(Element& element) {
    form1.place(0, 0, 1000, 1000);
    QStringList told;
    for (const QPointF& place : {QPointF(300, 300), {900, 900}, {-100, -100}, {300, 900}}) {
      QString moved;
      for (const auto& [way, x, y] : {std::tuple('R', 7, 0), {'D', 0, 7}, {'L', -7, 0}, {'U', 0, -7}}) {
        element.setContainer(form1);
        element.place(static_cast<float>(place.x()), static_cast<float>(place.y()), 200, 200);
        input.press(element, 0, 0, MouseButton::Left);
        input.move(element, static_cast<float>(x), static_cast<float>(y), MouseButton::Left);
        if (QPointF(element.left(), element.top()) != place) moved += way;
      }
      told << (moved.isEmpty() ? QStringLiteral("stays") : moved);
    }
    setApart(element);
    return told.join(", ");
  }

  State state;
  Form1& form1 = state.form1;
  test::ScriptedPlatform world;
  CanvasInput input{state, world.platform};
  test::Effects effects{state};
};

TEST_F(Mouse, DoesToEachFamilyWhatItStandsFor) {
  QString told = paragraph("a click", [this](Element& element) { return click(element); });
  told += paragraph("the words of a click", [this](Element& element) {
    return wordsOf(element, [&] { state.board.click(element); });
  });
  told += paragraph("the words of a press", [this](Element& element) {
    return wordsOf(element, [&] { input.press(element, 1, 1, MouseButton::Left); });
  });
  told += paragraph("a press of the left button",
                    [this](Element& element) { return press(element, MouseButton::Left); });
  told += paragraph("a press of the right button",
                    [this](Element& element) { return press(element, MouseButton::Right); });
  told += paragraph("a drag, from the middle, the far corner, beyond the near one, the foot",
                    [this](Element& element) { return ways(element); });
  test::expectParagraphs(told, VENEERER_SOURCE_DIR "/tests/canvas/mouse.txt");
}

}  // namespace
}  // namespace veneerer
