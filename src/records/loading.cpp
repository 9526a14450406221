#include "records/loading.h"

namespace veneerer {

void Loading::show(const QString& reference, Element& element) const {
  const QString path = folder.resolve(reference);
  if (path.isEmpty()) return;
  const Picture picture = state.pictures.load(path);
  if (!picture.isNull()) element.set(Property::Picture, picture);
}

}  // namespace veneerer
