#include "forms/state.h"

namespace veneerer {

namespace {

struct Key {
  QString window;
  QString family;
  int index = -1;
  bool isValid = true;
};

Key parseKey(const QString& text) {
  Key key;
  const auto dot = text.indexOf(u'.');
  key.window = text.left(dot);
  if (dot < 0) return key;
  const auto open = text.indexOf(u'(', dot);
  key.family = text.mid(dot + 1, open < 0 ? -1 : open - dot - 1);
  key.isValid = !key.family.isEmpty();
  if (open < 0) return key;
  bool isNumber = false;
  key.index = text.mid(open + 1, text.size() - open - 2).toInt(&isNumber);
  key.isValid = key.isValid && isNumber && key.index >= 0 && text.endsWith(u')');
  return key;
}

}  // namespace

Element* State::find(const QString& text) {
  const Key key = parseKey(text);
  if (!key.isValid) return nullptr;
  for (Window* window : windows()) {
    if (window->name() != key.window) continue;
    if (key.family.isEmpty()) return window;
    const Family* family = window->family(key.family);
    return family ? family->find(key.index) : nullptr;
  }
  return nullptr;
}

}  // namespace veneerer
