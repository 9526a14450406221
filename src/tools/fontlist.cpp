#include "tools/fontlist.h"

#include <QFontDatabase>
#include <QMap>

namespace veneerer {

namespace {

QStringList familiesOf(const Window& window) {
  QStringList names;
  for (const Family* family : window.families())
    for (const Element* element : family->members())
      if (element->has(Property::FontName)) names.append(element->as<QString>(Property::FontName));
  return names;
}

/// Each name once, in order; of names that differ in case alone the last one stays.
QStringList eachOnce(const QStringList& names) {
  QMap<QString, QString> byFolded;
  for (const QString& name : names)
    if (!name.isEmpty()) byFolded.insert(name.toCaseFolded(), name);
  return byFolded.values();
}

}  // namespace

QString withoutFoundry(const QString& family) {
  const qsizetype bracket = family.lastIndexOf(u'[');
  return family.endsWith(u']') && bracket > 0 ? family.first(bracket).trimmed() : family;
}

void listFonts(State& state) {
  QStringList names = familiesOf(state.form1);
  // The machine's spelling stands for both.
  for (const QString& family : QFontDatabase::families()) names.append(withoutFoundry(family));
  const QStringList rows = eachOnce(names);
  ListBox& fonts = *state.form6.List1;
  if (fonts.list() == rows) return;
  const QString chosen = fonts.text();
  fonts.setRows(rows);
  fonts.setText(chosen);
}

}  // namespace veneerer
