#include "forms/fieldlabels.h"

#include "elements/window.h"
#include "forms/texts.h"

namespace veneerer {

namespace {

struct FieldLabel {
  const char16_t* family;
  const char* text;
};

// Most of them are the system's own and stay as they are.
constexpr FieldLabel kLabels[] = {
    {u"Combo1", "Number of tracks shown"},
    {u"Combo2", "Jump To Letter"},
    {u"Combo3", "Loaded Skin"},
    {u"Combo4", "N.o Covers"},
    {u"Combo5", "Genre Style"},
    {u"Combo6", "Navigation Style"},
    {u"Combo7", "Number of genres shown"},
    {u"Combo8", "Default Screen"},
    {u"Combo9", "Default HOME Screen"},
    {u"Combo10", "Player Style"},
    {u"Combo11", "Genre Nav"},
    {u"Combo12", "Other Albums"},
    {u"Text1", "Skin Resolution"},
    {u"Text2", QT_TRANSLATE_NOOP("Forms", "File name")},
    {u"File1", QT_TRANSLATE_NOOP("Forms", "Cover files")},
};

}  // namespace

QString fieldLabel(const Family& family) {
  if (family.window().name() != u"Form4") return {};
  for (const FieldLabel& label : kLabels)
    if (family.name() == label.family) return FormTexts::tr(label.text);
  return {};
}

}  // namespace veneerer
