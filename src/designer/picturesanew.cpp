#include "designer/picturesanew.h"

#include <functional>

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

void forEachElement(State& state, const std::function<void(Element&)>& act) {
  for (Window* window : state.windows()) {
    act(*window);
    for (const Family* family : window->families())
      for (Element* element : family->members()) act(*element);
  }
}

}  // namespace

void showAnew(State& state, const SkinFolder& folder, const QSet<QString>& paths) {
  const ViewsOnly views(state.board);
  forEachElement(state, [&](Element& element) { showChanged(state, element, paths); });
  showFound(state, folder, paths);
}

void showOfCopy(State& state, const SkinFolder& from, const SkinFolder& to) {
  const ViewsOnly views(state.board);
  const QString folder = from.path() + u'/';
  forEachElement(state, [&](Element& element) {
    const Picture* shown = pictureOf(element);
    const QString path = shown ? shown->path() : QString();
    if (path.startsWith(folder)) show(state, element, to.file(path.mid(folder.size())));
  });
}

}  // namespace veneerer
