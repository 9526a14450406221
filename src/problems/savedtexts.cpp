#include "problems/savedtexts.h"

#include "problems/rawvalues.h"
#include "problems/textdamage.h"
#include "problems/texts.h"

namespace veneerer {

QString savedTextDamage(const Element& element, Property property) {
  switch (property) {
    case Property::Caption:
      return textDamage(ProblemTexts::tr("caption"), element.as<QString>(property));
    case Property::FontName:
      return textDamage(ProblemTexts::tr("font name"), element.as<QString>(property));
    case Property::Text:
      // A box that shows a number may begin with its sign's blank.
      return textDamage(ProblemTexts::tr("number"), withoutLeadingBlanks(element.as<QString>(property)));
    case Property::Name: {
      const auto& name = element.as<StoredValue>(property);
      return name.isNumber() ? QString() : textDamage(ProblemTexts::tr("image reference"), name.text());
    }
    default:
      return {};
  }
}

}  // namespace veneerer
