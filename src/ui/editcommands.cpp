#include "ui/editcommands.h"

#include <algorithm>

#include "canvas/sections.h"
#include "editing/walking.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

template <class Can, class Act>
void addWhere(QMenu& menu, const QString& text, const QString& tip, Operator& hands, Can can, Act act) {
  QAction* action = menu.addAction(text);
  action->setStatusTip(tip);
  const auto enable = [action, can] { action->setEnabled(can()); };
  enable();
  QObject::connect(&hands, &Operator::selected, action, enable);
  QObject::connect(&hands, &Operator::acted, action, enable);
  QObject::connect(action, &QAction::triggered, action, act);
}

template <class F>
void add(QMenu& menu, const QString& text, const QString& tip, Operator& hands, std::size_t least, F act) {
  addWhere(
      menu, text, tip, hands, [&hands, least] { return hands.overlay().elements().size() >= least; }, act);
}

// What is selected, else what is in hand on the canvas.
std::vector<Element*> chosen(Operator& hands) {
  if (!hands.overlay().elements().empty()) return hands.overlay().elements();
  Element* inHand = currentElement(hands.state());
  const bool isOnCanvas = inHand && &inHand->window() == &hands.state().form1;
  return isOnCanvas ? std::vector<Element*>{inHand} : std::vector<Element*>();
}

// Offered where it would change something.
void addLock(QMenu& menu, const QString& text, const QString& tip, Operator& hands, bool locks) {
  const auto can = [&hands, locks] {
    return std::ranges::any_of(
        chosen(hands), [&](const Element* element) { return hands.overlay().isLocked(*element) != locks; });
  };
  addWhere(menu, text, tip, hands, can, [&hands, locks] {
    for (const Element* element : chosen(hands)) hands.overlay().lock(*element, locks);
  });
}

void addAligning(QMenu& menu, Operator& hands) {
  struct Entry {
    const char* text;
    AlignTo edge;
  };
  for (const Entry& entry : {Entry{QT_TRANSLATE_NOOP("Ui", "&Left"), AlignTo::Left},
                             {QT_TRANSLATE_NOOP("Ui", "&Right"), AlignTo::Right},
                             {QT_TRANSLATE_NOOP("Ui", "&Top"), AlignTo::Top},
                             {QT_TRANSLATE_NOOP("Ui", "&Bottom"), AlignTo::Bottom},
                             {QT_TRANSLATE_NOOP("Ui", "&Centre"), AlignTo::Centre},
                             {QT_TRANSLATE_NOOP("Ui", "&Middle"), AlignTo::Middle}})
    add(menu, UiTexts::tr(entry.text), UiTexts::tr("Move what is selected into line with the first of it"),
        hands, 2, [&hands, edge = entry.edge] { hands.align(edge); });
}

// From what is selected on the overlay, else from what is in hand.
void selectNeighbour(Operator& hands, int step) {
  const std::vector<Element*>& selected = hands.overlay().elements();
  const Element* from = selected.empty() ? currentElement(hands.state()) : selected.back();
  if (Element* next = neighbourOf(hands.state(), from, step)) hands.overlay().select({next});
}

void addWalking(QMenu& menu, Operator& hands) {
  struct Entry {
    const char* text;
    const char* tip;
    QKeySequence keys;
    int step;
  };
  for (const Entry& entry :
       {Entry{QT_TRANSLATE_NOOP("Ui", "Select Ne&xt"),
              QT_TRANSLATE_NOOP("Ui", "Select the next element of the screen; Enter on the canvas clicks it"),
              QKeySequence(Qt::ALT | Qt::Key_Right), 1},
        {QT_TRANSLATE_NOOP("Ui", "Select Pre&vious"),
         QT_TRANSLATE_NOOP("Ui", "Select the element of the screen ahead; Enter on the canvas clicks it"),
         QKeySequence(Qt::ALT | Qt::Key_Left), -1}}) {
    add(menu, UiTexts::tr(entry.text), UiTexts::tr(entry.tip), hands, 0,
        [&hands, step = entry.step] { selectNeighbour(hands, step); });
    menu.actions().last()->setShortcut(entry.keys);
    menu.actions().last()->setShortcutContext(Qt::ApplicationShortcut);
  }
}

}  // namespace

void addEditCommands(QMenu& menu, Operator& hands) {
  menu.addSeparator();
  addAligning(*menu.addMenu(UiTexts::tr("&Align")), hands);
  QMenu& distribute = *menu.addMenu(UiTexts::tr("&Distribute"));
  const QString gaps = UiTexts::tr("Make the gaps of what is selected equal");
  add(distribute, UiTexts::tr("&Across"), gaps, hands, 3, [&hands] { hands.distribute(Along::Across); });
  add(distribute, UiTexts::tr("&Down"), gaps, hands, 3, [&hands] { hands.distribute(Along::Down); });
  QMenu& size = *menu.addMenu(UiTexts::tr("&Same Size"));
  const QString like = UiTexts::tr("Give what is selected the size of the first of it");
  add(size, UiTexts::tr("&Width"), like, hands, 2, [&hands] { hands.makeSameSize(Sides::Width); });
  add(size, UiTexts::tr("&Height"), like, hands, 2, [&hands] { hands.makeSameSize(Sides::Height); });
  add(size, UiTexts::tr("&Both"), like, hands, 2, [&hands] { hands.makeSameSize(Sides::Both); });
  addLock(menu, UiTexts::tr("&Lock"),
          UiTexts::tr("Keep what is selected, else what is in hand, from being moved and sized"), hands,
          true);
  addLock(menu, UiTexts::tr("Unloc&k"),
          UiTexts::tr("Let what is selected, else what is in hand, be moved and sized again"), hands, false);
  addWalking(menu, hands);
  add(menu, UiTexts::tr("Select &Nothing"), UiTexts::tr("Empty the selection on the overlay"), hands, 1,
      [&hands] { hands.overlay().clear(); });
}

}  // namespace veneerer
