#include "ui/newskindialog.h"

#include <QColorDialog>
#include <QFormLayout>
#include <QtConcurrent>

#include "looks/looks.h"
#include "looks/plans.h"
#include "looks/texts.h"
#include "ui/colourmenu.h"
#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr QSize kPicture(300, 240);  // room of each, device-independent pixels
constexpr int kFieldsWidth = 300;
constexpr int kChip = 16;
// The main screen, the album view, the history and the play options.
constexpr std::array kShown = {0, 9, 1, 15};
constexpr const char* kSizes[] = {"640x480",  "800x600",   "1024x768",  "1280x800",  "1280x1024",
                                  "1366x768", "1080x1920", "1920x1080", "2560x1080", "3840x2160"};
constexpr const char* kFonts[] = {"Arial", "Times New Roman", "Courier New", "DejaVu Sans"};

struct ColourField {
  const char* caption;
  const char* name;  ///< of the button as an object
  const char* title;
  const char* tip;
};
constexpr ColourField kFields[] = {
    {QT_TRANSLATE_NOOP("Ui", "&Accent"), "Accent", QT_TRANSLATE_NOOP("Ui", "Accent"),
     QT_TRANSLATE_NOOP("Ui", "Lines, light, and what is to be touched next")},
    {QT_TRANSLATE_NOOP("Ui", "&Ground"), "Ground", QT_TRANSLATE_NOOP("Ui", "Ground"),
     QT_TRANSLATE_NOOP("Ui", "What everything stands on")},
    {QT_TRANSLATE_NOOP("Ui", "&Text"), "Text", QT_TRANSLATE_NOOP("Ui", "Text"),
     QT_TRANSLATE_NOOP("Ui", "The letters; moved where they couldn't be read on the ground")}};

QString sizeText(QSize size) {
  return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

void setTips(QWidget* widget, const char* name, const QString& tip) {
  widget->setObjectName(QString::fromLatin1(name));
  widget->setToolTip(tip);
}

}  // namespace

NewSkinDialog::NewSkinDialog(const QString& name, FaultOfName faultOfName, QWidget* parent)
    : QDialog(parent),
      faultOfName_(std::move(faultOfName)),
      name_(new QLineEdit(name)),
      look_(new QComboBox),
      what_(new QLabel),
      size_(new QComboBox),
      font_(new QComboBox),
      notes_(new QLabel),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
  setObjectName(QStringLiteral("newSkin"));
  setWindowTitle(tr("New Skin"));
  buttons_->button(QDialogButtonBox::Ok)->setText(tr("&Create"));
  auto* row = new QHBoxLayout;
  row->addLayout(makeFields());
  row->addLayout(makePictures(), 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(row, 1);
  column->addWidget(buttons_);
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(&drawing_, &QFutureWatcherBase::finished, this, [this] { show(drawing_.result()); });
  chooseLook();
  name_->selectAll();
  name_->setFocus();
}

NewSkinDialog::~NewSkinDialog() {
  drawing_.disconnect(this);
  drawing_.waitForFinished();
}

QLayout* NewSkinDialog::makeFields() {
  for (const looks::Look* look : looks::allLooks()) look_->addItem(QString::fromLatin1(look->name));
  for (const char* size : kSizes) size_->addItem(QString::fromLatin1(size));
  for (const char* font : kFonts) font_->addItem(QString::fromLatin1(font));
  size_->setEditable(true);
  font_->setEditable(true);
  setTips(name_, "name", tr("The name of its folder among the Skins"));
  setTips(look_, "look", tr("The kind of the Skin; brings its own size, colours and font"));
  setTips(size_, "size", tr("Width x height of the screen in pixels, also typed"));
  setTips(font_, "font", tr("The font of all texts"));
  for (QLabel* text : {what_, notes_}) {
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
  }
  notes_->setObjectName(QStringLiteral("notes"));
  notes_->setAlignment(Qt::AlignTop);
  notes_->setFixedWidth(kFieldsWidth);
  notes_->setMinimumHeight(5 * fontMetrics().lineSpacing());
  what_->setMinimumHeight(3 * fontMetrics().lineSpacing());
  what_->setAlignment(Qt::AlignTop);
  auto* form = new QFormLayout;
  form->addRow(tr("&Name:"), name_);
  form->addRow(tr("&Look:"), look_);
  form->addRow(what_);
  form->addRow(tr("&Size:"), size_);
  form->addRow(tr("&Font:"), font_);
  form->addRow(makeColours());
  form->addRow(notes_);
  connect(name_, &QLineEdit::textChanged, this, &NewSkinDialog::changed);
  connect(look_, &QComboBox::currentIndexChanged, this, &NewSkinDialog::chooseLook);
  connect(size_, &QComboBox::currentTextChanged, this, &NewSkinDialog::changed);
  connect(font_, &QComboBox::currentTextChanged, this, &NewSkinDialog::changed);
  return form;
}

QWidget* NewSkinDialog::makeColours() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 0, 0, 0);
  for (int i = 0; i < kColours; ++i) {
    const ColourField& field = kFields[i];
    auto* button = new QPushButton(UiTexts::tr(field.caption));
    setTips(button, field.name, UiTexts::tr(field.tip));
    connect(button, &QPushButton::clicked, this, [this, i] { chooseColour(i); });
    row->addWidget(button);
    colourButtons_[static_cast<std::size_t>(i)] = button;
  }
  auto* colours = new QWidget;
  colours->setLayout(row);
  return colours;
}

QLayout* NewSkinDialog::makePictures() {
  auto* grid = new QGridLayout;
  for (int i = 0; i < kScreens; ++i) {
    auto* picture = new QLabel;
    picture->setMinimumSize(kPicture);
    picture->setAlignment(Qt::AlignCenter);
    picture->setAccessibleName(tr("Preview"));
    grid->addWidget(picture, i / 2, i % 2);
    pictures_[static_cast<std::size_t>(i)] = picture;
  }
  return grid;
}

looks::Wish NewSkinDialog::wish() const {
  const looks::Look* look = looks::allLooks()[static_cast<std::size_t>(std::max(0, look_->currentIndex()))];
  const QString font = font_->currentText().trimmed();
  return {look,
          size(),
          {colours_[0], colours_[1], colours_[2]},
          font.isEmpty() ? QString::fromLatin1(look->font) : font};
}

QSize NewSkinDialog::size() const {
  const QStringList sides = size_->currentText().toLower().split(u'x');
  if (sides.size() != 2) return {};
  return {sides[0].trimmed().toInt(), sides[1].trimmed().toInt()};
}

QString NewSkinDialog::fault() const {
  const QString ofName = faultOfName_(name());
  if (!ofName.isEmpty()) return ofName;
  const QString ofSize = looks::faultOfSize(size());
  return ofSize.isEmpty() ? QString() : ofSize.left(1).toUpper() + ofSize.mid(1) + u'.';
}

void NewSkinDialog::chooseLook() {
  const looks::Wish usual =
      looks::defaultsOf(*looks::allLooks()[static_cast<std::size_t>(std::max(0, look_->currentIndex()))]);
  what_->setText(looks::LookTexts::tr(usual.look->what) + u'.');
  const QColor colours[] = {usual.colours.accent, usual.colours.ground, usual.colours.text};
  for (int i = 0; i < kColours; ++i) setColour(i, colours[i]);
  size_->setCurrentText(sizeText(usual.size));
  font_->setCurrentText(usual.font);
  changed();
}

void NewSkinDialog::setColour(int which, const QColor& colour) {
  const auto at = static_cast<std::size_t>(which);
  colours_[at] = colour;
  colourButtons_[at]->setIcon(colourChip(colour, kChip));
}

// The pictures follow while a colour is looked for.
void NewSkinDialog::chooseColour(int which) {
  const QColor before = colours_[static_cast<std::size_t>(which)];
  QColorDialog dialog(before, this);
  dialog.setWindowTitle(UiTexts::tr(kFields[which].title));
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  const auto take = [this, which](const QColor& colour) {
    setColour(which, colour);
    changed();
  };
  connect(&dialog, &QColorDialog::currentColorChanged, this, take);
  if (dialog.exec() != QDialog::Accepted) take(before);
}

void NewSkinDialog::changed() {
  const QString fault = this->fault();
  buttons_->button(QDialogButtonBox::Ok)->setEnabled(fault.isEmpty());
  notes_->setText(fault);
  if (drawing_.isRunning())
    isStale_ = true;
  else
    draw();
}

void NewSkinDialog::draw() {
  isStale_ = false;
  if (!looks::faultOfSize(size()).isEmpty()) return;
  const QSize within = kPicture * devicePixelRatioF();
  drawing_.setFuture(
      QtConcurrent::run([wish = wish(), within] { return looks::glimpseOf(wish, kShown, within); }));
}

void NewSkinDialog::show(const looks::Glimpse& glimpse) {
  for (int i = 0; i < kScreens; ++i) {
    QPixmap pixmap = QPixmap::fromImage(glimpse.screens[i]);
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pictures_[static_cast<std::size_t>(i)]->setPixmap(pixmap);
  }
  if (fault().isEmpty()) notes_->setText(glimpse.notes.join(u'\n'));
  if (isStale_) return draw();
  Q_EMIT drawn();
}

}  // namespace veneerer
