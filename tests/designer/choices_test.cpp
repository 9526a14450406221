// What each choice of Form4 shows and hides on the canvas, beside all that no example would find.
//
// A paragraph of choices.txt is a control, at work beside one of two sets of other choices. Its lines are the
// rows that show or hide the same: "+" goes before what comes up where all was hidden, "-" before what goes
// where all was shown.
#include "designer/designer.h"
#include "panels/skinproperties.h"
#include "skin/lists.h"
#include "support/effects.h"

namespace veneerer {
namespace {

class Choices : public testing::Test {
protected:
  Choices() {
    fillFirstLists(state);
    fillOtherLists(state);
    for (const Family* family : form1.families())
      for (Element* element : family->members())
        if (element->has(Property::Visible)) hideable.push_back(element);
  }

  QString paragraph(const Element& control, const QString& beside, const QList<int>& rows,
                    const std::function<void(int)>& choose) {
    QMap<QString, QStringList> rowsOf;  // by the effect
    QStringList inOrder;
    for (const int row : rows) {
      const QString effect = effectOf(row, choose);
      if (!rowsOf.contains(effect)) inOrder << effect;
      rowsOf[effect] << QString::number(row);
    }
    QString told = control.key() + ' ' + beside + '\n';
    for (const QString& effect : inOrder)
      told += QStringLiteral("  %1  %2\n").arg(rowsOf[effect].join(' '), effect);
    return told + '\n';
  }

  QString listed(ComboBox& list, const QString& beside) {
    return paragraph(list, beside, tellingRows(static_cast<int>(list.list().size())),
                     [&](int row) { list.select(row); });
  }

  QString ticked(CheckBox& box, const QString& beside) {
    return paragraph(box, beside, {0, 1}, [&](int value) {
      setQuietly(box, 1 - value);
      box.setValue(value);
    });
  }

  /// All choices, beside the ones that are in force.
  QString all(const QString& beside) {
    QString told;
    for (ComboBox* list : {&*form4.Combo1, &*form4.Combo7, &*form4.Combo5, &*form4.Combo11, &*form4.Combo2,
                           &*form4.Combo6, &*form4.Combo10, &*form4.Combo12, &*form4.Combo4})
      told += listed(*list, beside);
    for (CheckBox* box : {&*form4.Check10, &*form4.Check6, &*form4.Check7, &*form4.Check1})
      told += ticked(*box, beside);
    return told;
  }

  /// Has no effect of its own.
  void set(int genres, int genreStyle, int albums, bool datesAndNames, bool textOnly, int lastCover) {
    const ViewsOnly quietly(state.board);
    form4.Combo7->select(genres);
    form4.Combo5->select(genreStyle);
    form4.Combo12->select(albums);
    form4.Check6->setValue(datesAndNames);
    form4.Check1->setValue(textOnly);
    state.globals.LastCoverIndex->setValue(lastCover);
  }

  State state;
  Form1& form1 = state.form1;
  Form4& form4 = state.form4;

private:
  /// Of a long list of numbers the ends and a few between.
  static QList<int> tellingRows(int count) {
    QList<int> rows;
    for (int row = 0; row < count; ++row)
      if (count <= 12 || row < 2 || row == count / 2 || row >= count - 2) rows << row;
    return rows;
  }

  void setQuietly(CheckBox& box, int value) {
    const ViewsOnly quietly(state.board);
    box.setValue(value);
  }

  QString effectOf(int row, const std::function<void(int)>& choose) {
    QStringList told;
    for (const bool isShown : {false, true}) {
      showAll(isShown);
      const test::Effects::Changed changed =
          effects.of([&] { choose(row); }, [this](const Element& e) { return &e.window() == &form1; });
      const QString words = effects.told(changed).remove(" Visible");
      if (!words.isEmpty()) told << (isShown ? "-" : "+") + words;
    }
    return told.isEmpty() ? QStringLiteral("nothing") : told.join("  ");
  }

  void showAll(bool isShown) {
    const ViewsOnly quietly(state.board);
    for (Element* element : hideable) element->setVisible(isShown);
  }

  SkinProperties properties{state, Screen()};
  test::Effects effects{state};
  std::vector<Element*> hideable;
};

TEST_F(Choices, ShowAndHideWhatTheyStandFor) {
  set(4, 0, 3, true, false, 6);
  QString told = all("beside few");
  set(27, 2, 8, false, true, kCovers - 1);
  told += all("beside many, as texts only");
  test::expectParagraphs(told, VENEERER_SOURCE_DIR "/tests/designer/choices.txt");
}

}  // namespace
}  // namespace veneerer
