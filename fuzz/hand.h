// An operator who does anything.
#pragma once

#include "fuzz/choices.h"
#include "fuzz/world.h"
#include "painting/canvaspainter.h"

namespace veneerer::fuzz {

class Hand {
public:
  Hand(World& world, const Choices& choices) : world_(world), choices_(choices) {}

  /// Does what the choices tell, one action after the other, to their end. What an action throws ends it.
  void play();

private:
  using Action = void (Hand::*)();
  struct Place {
    float x;
    float y;
  };
  static const Action kActions[];

  void drag();
  void clickCanvas();
  void act();
  void actInTools();
  void nudge();
  void size();
  void resize();
  void set();
  void recolour();
  void copyLook();
  void arrange();
  void takeLook();
  void drop();
  void readAnew();
  void openOther();
  void save();
  void mend();
  void undo();
  void paint();

  void use(Element& element);
  void answerDialogs();
  Element& member(const Window& window);
  std::vector<Element*> severalMembers();
  Value value(Property property);
  float twips();
  Place place();
  MouseButton button();
  Colour colour();
  QString text();
  QString picture();

  World& world_;
  Designer& designer_ = *world_.designer;
  Choices choices_;
  CanvasPainter painter_;
};

}  // namespace veneerer::fuzz
