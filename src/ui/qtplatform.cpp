#include "ui/qtplatform.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <cmath>

#include "elements/colour.h"
#include "ui/fontdialog.h"
#include "ui/picturedialog.h"
#include "ui/progresswindow.h"

namespace veneerer {

namespace {

constexpr int kBelowSplash = 16;  // pixels

// The window that a dialog belongs to. The splash is none: it goes while its question may still stand.
QWidget* dialogParent() {
  QWidget* active = QApplication::activeWindow();
  return active && active->windowType() != Qt::SplashScreen ? active : nullptr;
}

// A question of the start stands below the splash, which tells what it is about.
void placeBelowSplash(QWidget& box) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->windowType() != Qt::SplashScreen || !window->isVisible()) continue;
    const QRect splash = window->frameGeometry();
    box.move(splash.center().x() - box.sizeHint().width() / 2, splash.bottom() + kBelowSplash);
  }
}

bool runBox(const QString& title, const QString& text, QMessageBox::Icon icon,
            QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, title, QString(), buttons, dialogParent());
  // A Skin's name is part of some texts.
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  placeBelowSplash(box);
  return box.exec() == QMessageBox::Ok;
}

}  // namespace

void QtDialogs::showMessage(const QString& title, const QString& text) {
  runBox(title, text, QMessageBox::Information, QMessageBox::Ok);
}

bool QtDialogs::showQuestion(const QString& title, const QString& text) {
  return runBox(title, text, QMessageBox::Question, QMessageBox::Ok | QMessageBox::Cancel);
}

QString QtDialogs::showFileDialog(const QString& filter) {
  const QString file =
      runPictureDialog(pictureFolder(skin_(), lastFolder_), dialogFilter(filter), dialogParent());
  if (!file.isEmpty()) lastFolder_ = QFileInfo(file).path();
  return file;
}

std::optional<Colour> QtDialogs::chooseColour(Colour initial) {
  const QColor colour = QColorDialog::getColor(initial.toQColor(), dialogParent());
  if (!colour.isValid()) return std::nullopt;
  return Colour::of(colour);
}

std::optional<FontChoice> QtDialogs::chooseFont(const FontChoice& initial) {
  return runFontDialog(initial, dialogParent());
}

QtProgress::QtProgress() = default;

QtProgress::~QtProgress() = default;

void QtProgress::step(int done, int total, const QString& what) {
  if (done >= total) return window_.reset();
  if (!window_) window_ = std::make_unique<ProgressWindow>();
  window_->tell(done, total, what);
}

QString IniSettings::value(const QString& section, const QString& key, const QString& defaultValue) const {
  const QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("V-Quill 8"));
  const QVariant value = settings.value(section + u'/' + key, defaultValue);
  // The store takes a comma outside quotes for the start of another entry.
  return value.toStringList().join(QStringLiteral(", "));
}

QString dialogFilter(const QString& filter) {
  const QStringList parts = filter.split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
    filters.append(QStringLiteral("%1 (%2)").arg(parts[i], patterns.join(u' ')));
  }
  return filters.join(QStringLiteral(";;"));
}

Screen primaryScreen() {
  Screen screen;
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (!primary) return screen;
  const QSizeF size = QSizeF(primary->size()) * primary->devicePixelRatio();
  // The desktop's units round the size. Of a half the even neighbour is the likely one: screens have even
  // sides.
  screen.width = static_cast<int>(std::nearbyint(size.width()));
  screen.height = static_cast<int>(std::nearbyint(size.height()));
  return screen;
}

}  // namespace veneerer
