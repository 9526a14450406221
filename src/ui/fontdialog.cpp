#include "ui/fontdialog.h"

#include <QFontDatabase>
#include <QFontDialog>
#include <QGridLayout>
#include <QLabel>

#include "elements/printable.h"
#include "tools/fontlist.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

// Points; the dialog takes no more, and a stranger's label may claim any size.
constexpr float kLargestSize = 512;

QFont toQFont(const FontChoice& choice) {
  QFont font(choice.name);
  if (choice.size > 0) font.setPointSizeF(std::clamp(choice.size, 1.0f, kLargestSize));
  font.setBold(choice.bold);
  font.setItalic(choice.italic);
  font.setUnderline(choice.underline);
  font.setStrikeOut(choice.strikethrough);
  return font;
}

FontChoice fromQFont(const QFont& font) {
  return {withoutFoundry(font.family()),
          static_cast<float>(font.pointSizeF()),
          font.bold(),
          font.italic(),
          font.underline(),
          font.strikeOut()};
}

template <class T>
void keepUnlessChanged(T FontChoice::*part, const FontChoice& shown, const FontChoice& initial,
                       FontChoice& chosen) {
  if (chosen.*part == shown.*part) chosen.*part = initial.*part;
}

// What stands as it was shown is what was there before it was shown.
FontChoice changedParts(const FontChoice& shown, const FontChoice& initial, FontChoice chosen) {
  keepUnlessChanged(&FontChoice::name, shown, initial, chosen);
  keepUnlessChanged(&FontChoice::size, shown, initial, chosen);
  for (bool FontChoice::*flag :
       {&FontChoice::bold, &FontChoice::italic, &FontChoice::underline, &FontChoice::strikethrough})
    keepUnlessChanged(flag, shown, initial, chosen);
  return chosen;
}

void tellOfMissingFamily(QFontDialog& dialog, const QString& family) {
  auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (!grid || QFontDatabase::hasFamily(family)) return;
  auto* line = new QLabel;
  line->setTextFormat(Qt::PlainText);
  line->setText(UiTexts::tr("This machine has no \"%1\". The label keeps it unless you choose another font.")
                    .arg(excerpt(family)));
  line->setWordWrap(true);
  grid->addWidget(line, grid->rowCount(), 0, 1, -1);
}

}  // namespace

std::optional<FontChoice> runFontDialog(const FontChoice& initial, QWidget* parent) {
  QFontDialog dialog(parent);
  // Only the toolkit's own dialog says what it shows.
  dialog.setOption(QFontDialog::DontUseNativeDialog);
  dialog.setCurrentFont(toQFont(initial));
  tellOfMissingFamily(dialog, initial.name);
  const FontChoice shown = fromQFont(dialog.currentFont());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return changedParts(shown, initial, fromQFont(dialog.selectedFont()));
}

}  // namespace veneerer
