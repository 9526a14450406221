// A window as an element: it owns families, in the window's own order, and holds elements.
#pragma once

#include <QHash>
#include <vector>

#include "elements/element.h"

namespace veneerer {

class Window : public Element {
public:
  Window(Switchboard& board, const char* name);

  const QString& name() const { return name_; }
  Switchboard& board() const { return board_; }

  /// The families in the order of their declaration, which is the window's own order.
  const std::vector<Family*>& families() const { return families_; }
  /// The family of that name, null when there is none.
  Family* family(const QString& name) const { return byName_.value(name); }

  const QString& caption() const { return as<QString>(Property::Caption); }
  void setCaption(const QString& text) { set(Property::Caption, text); }
  Colour backColor() const { return as<Colour>(Property::BackColor); }
  void setBackColor(Colour colour) { set(Property::BackColor, colour); }
  const Picture& picture() const { return as<Picture>(Property::Picture); }
  void setPicture(const Picture& picture) { set(Property::Picture, picture); }

private:
  friend class Family;
  void add(Family& family);

  QString name_;
  Switchboard& board_;
  std::vector<Family*> families_;
  QHash<QString, Family*> byName_;
};

}  // namespace veneerer
