#include "ui/editcommands.h"

#include "canvas/sections.h"
#include "editing/walking.h"

namespace veneerer {

namespace {

template <class F>
void add(QMenu& menu, const char* text, const char* tip, Operator& hands, std::size_t least, F act) {
  QAction* action = menu.addAction(QString::fromLatin1(text));
  action->setStatusTip(QString::fromLatin1(tip));
  const auto enable = [action, &hands, least] {
    action->setEnabled(hands.overlay().elements().size() >= least);
  };
  enable();
  QObject::connect(&hands, &Operator::selected, action, enable);
  QObject::connect(action, &QAction::triggered, action, act);
}

void addAligning(QMenu& menu, Operator& hands) {
  struct Entry {
    const char* text;
    AlignTo edge;
  };
  for (const Entry& entry : {Entry{"&Left", AlignTo::Left},
                             {"&Right", AlignTo::Right},
                             {"&Top", AlignTo::Top},
                             {"&Bottom", AlignTo::Bottom},
                             {"&Centre", AlignTo::Centre},
                             {"&Middle", AlignTo::Middle}})
    add(menu, entry.text, "Move what is selected into line with the first of it", hands, 2,
        [&hands, edge = entry.edge] { hands.align(edge); });
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
       {Entry{"Select Ne&xt", "Select the next element of the screen; Enter on the canvas clicks it",
              QKeySequence(Qt::ALT | Qt::Key_Right), 1},
        {"Select Pre&vious", "Select the element of the screen ahead; Enter on the canvas clicks it",
         QKeySequence(Qt::ALT | Qt::Key_Left), -1}}) {
    add(menu, entry.text, entry.tip, hands, 0, [&hands, step = entry.step] { selectNeighbour(hands, step); });
    menu.actions().last()->setShortcut(entry.keys);
    menu.actions().last()->setShortcutContext(Qt::ApplicationShortcut);
  }
}

}  // namespace

void addEditCommands(QMenu& menu, Operator& hands) {
  menu.addSeparator();
  addAligning(*menu.addMenu(QStringLiteral("&Align")), hands);
  QMenu& distribute = *menu.addMenu(QStringLiteral("&Distribute"));
  constexpr char kGaps[] = "Make the gaps of what is selected equal";
  add(distribute, "&Across", kGaps, hands, 3, [&hands] { hands.distribute(Along::Across); });
  add(distribute, "&Down", kGaps, hands, 3, [&hands] { hands.distribute(Along::Down); });
  QMenu& size = *menu.addMenu(QStringLiteral("&Same Size"));
  constexpr char kSize[] = "Give what is selected the size of the first of it";
  add(size, "&Width", kSize, hands, 2, [&hands] { hands.makeSameSize(Sides::Width); });
  add(size, "&Height", kSize, hands, 2, [&hands] { hands.makeSameSize(Sides::Height); });
  add(size, "&Both", kSize, hands, 2, [&hands] { hands.makeSameSize(Sides::Both); });
  const auto lock = [&hands](bool isLocked) {
    for (const Element* element : hands.overlay().elements()) hands.overlay().lock(*element, isLocked);
  };
  add(menu, "&Lock", "Keep what is selected from being grabbed by the mouse", hands, 1,
      [lock] { lock(true); });
  add(menu, "Unloc&k", "Let what is selected be grabbed again", hands, 1, [lock] { lock(false); });
  addWalking(menu, hands);
  add(menu, "Select &Nothing", "Empty the selection on the overlay", hands, 1,
      [&hands] { hands.overlay().clear(); });
}

}  // namespace veneerer
