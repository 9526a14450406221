#include "designer/picturesanew.h"

#include "problems/shownreferences.h"

namespace veneerer {

namespace {

const Picture* pictureOf(const Element& element) {
  return element.has(Property::Picture) ? &element.as<Picture>(Property::Picture) : nullptr;
}

void show(State& state, Element& element, const QString& path) {
  const Picture picture = state.pictures.load(path);
  if (!picture.isNull()) element.restore(Property::Picture, picture);
}

void showChanged(State& state, Element& element, const QSet<QString>& paths) {
  const Picture* shown = pictureOf(element);
  if (shown && !shown->isNull() && paths.contains(shown->path())) show(state, element, shown->path());
}

void showFound(State& state, const SkinFolder& folder, const QSet<QString>& paths) {
  const ShownReferences references(state);
  for (const Family* family : state.names.families())
    for (const Element* slot : family->members()) {
      const QString path = folder.resolve(slot->as<StoredValue>(Property::Name).text());
      if (path.isEmpty() || !paths.contains(path)) continue;
      for (Element* element : references.elementsOf(*slot))
        if (pictureOf(*element)->isNull()) show(state, *element, path);
    }
}

}  // namespace

void showAnew(State& state, const SkinFolder& folder, const QSet<QString>& paths) {
  const ViewsOnly views(state.board);
  for (Window* window : state.windows()) {
    showChanged(state, *window, paths);
    for (const Family* family : window->families())
      for (Element* element : family->members()) showChanged(state, *element, paths);
  }
  showFound(state, folder, paths);
}

}  // namespace veneerer
