#include "forms/imagenames.h"

namespace veneerer {

ImageNames::ImageNames(Switchboard& board, Form1& form1) : Window(board, "ImageNames"), form1_(form1) {
  for (const Family* family : form1.families()) {
    if (family->members().front()->kind() != Kind::Button) continue;
    // The two buttons of lvButtons_H23 stand behind the 26 letters of lvButtons_H22, in one table.
    if (family == &form1.lvButtons_H23) continue;
    const int count = family == &form1.lvButtons_H22
                          ? form1.lvButtons_H22.bound() + form1.lvButtons_H23.bound()
                          : family->bound();
    const QByteArray name = family->name().toLatin1() + "Name";
    buttonTables_.push_back(std::make_unique<ImageTable>(*this, name.constData(), count));
    byFamily_.insert(family, buttonTables_.back().get());
  }
}

ImageTable& ImageNames::ofButtons(const Family& family) {
  const Family* owner = &family == &form1_.lvButtons_H23 ? &form1_.lvButtons_H22 : &family;
  ImageTable* table = byFamily_.value(owner);
  require(table != nullptr, "the family keeps no image names");
  return *table;
}

ImageSlot* ImageNames::of(const Element& element) {
  const Family* family = element.family();
  if (family == &form1_.Picture17) return &*NowPlayingPanelName;
  if (!family || element.kind() != Kind::Button || &family->window() != &form1_) return nullptr;
  const int shift = family == &form1_.lvButtons_H23 ? form1_.lvButtons_H22.bound() : 0;
  return &ofButtons(*family)[shift + std::max(0, element.index())];
}

}  // namespace veneerer
