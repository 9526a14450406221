#include "ui/openskindialog.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "elements/printable.h"
#include "ui/layouts.h"
#include "ui/plaintext.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kName = Qt::UserRole;
constexpr int kGap = 16;   // between two Skins, device-independent pixels
constexpr int kLines = 4;  // of text below a picture
constexpr int kRoom = 3;   // Skins in a row of the dialog as it comes up
constexpr int kMark = 48;  // of the mark of a broken Skin

QSize pictureRoom() {
  return {OpenSkinDialog::kPictureSide, OpenSkinDialog::kPictureSide * 3 / 4};
}

/// What stands in the place of a picture; a null mark for one that is awaited.
QPixmap substitute(const QWidget& widget, const QIcon& mark) {
  QPixmap pixmap(pictureRoom() * widget.devicePixelRatioF());
  pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
  pixmap.fill(widget.palette().color(QPalette::AlternateBase));
  QPainter painter(&pixmap);
  QRect place(0, 0, kMark, kMark);
  place.moveCenter(QRect(QPoint(), pictureRoom()).center());
  mark.paint(&painter, place);
  return pixmap;
}

QIcon iconOf(const QWidget& widget, const SkinGlance* glance) {
  if (!glance) return substitute(widget, {});
  if (!glance->fault.isEmpty())
    return substitute(widget, widget.style()->standardIcon(QStyle::SP_MessageBoxCritical));
  QPixmap pixmap = QPixmap::fromImage(glance->picture);
  pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
  // A proposed one keeps its colours, too.
  QIcon icon(pixmap);
  icon.addPixmap(pixmap, QIcon::Selected);
  return icon;
}

// Said ahead, where it can still be saved; there is no question.
QString endsText() {
  return UiTexts::tr(
      "\nTo open it ends the program with this text: what isn't saved in the Skin in hand is lost.");
}

QString foundText(int findings) {
  if (findings == 0) return UiTexts::tr("no problems");
  return findings == 1 ? UiTexts::tr("1 problem") : UiTexts::tr("%1 problems").arg(findings);
}

/// What is known of a Skin, in one sentence.
QString aboutText(const SkinGlance& glance, int findings) {
  if (!glance.fault.isEmpty()) return UiTexts::tr("Can't be loaded: %1").arg(glance.fault);
  QStringList facts;
  if (!glance.resolution.isEmpty()) facts << glance.resolution;
  if (glance.lastSaved.isValid())
    facts << UiTexts::tr("saved %1").arg(QLocale::system().toString(glance.lastSaved, QLocale::ShortFormat));
  if (findings >= 0) facts << foundText(findings);
  return facts.join(QStringLiteral(", "));
}

/// What is in sight comes first: the list is scrolled to the Skin in hand.
QStringList nearestFirst(const QStringList& skins, const QString& inHand) {
  const qsizetype at = std::max<qsizetype>(0, skins.indexOf(inHand));
  QStringList ordered;
  for (qsizetype by = 0; by < skins.size(); ++by)
    for (const qsizetype row : {at + by, at - by})
      if (row >= 0 && row < skins.size() && (by > 0 || ordered.isEmpty())) ordered.append(skins[row]);
  return ordered;
}

QString itemText(const QString& name, const SkinGlance* glance) {
  const QString below = !glance                   ? QString()
                        : glance->fault.isEmpty() ? glance->resolution
                                                  : UiTexts::tr("can't be loaded");
  return shownText(name) + u'\n' + shownText(below);
}

}  // namespace

OpenSkinDialog::OpenSkinDialog(Glancer& glancer, const QStringList& skins, const QString& inHand,
                               const QString& root, QWidget* parent)
    : QDialog(parent),
      glancer_(glancer),
      root_(root),
      search_(new QLineEdit),
      list_(new QListView),
      about_(new QLabel),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel)) {
  setObjectName(QStringLiteral("openSkin"));
  setWindowTitle(tr("Open Skin"));
  setUpList();
  about_->setTextFormat(Qt::PlainText);
  about_->setWordWrap(true);
  about_->setObjectName(QStringLiteral("about"));
  auto* column = new QVBoxLayout(this);
  column->addLayout(makeSearch());
  column->addWidget(list_, 1);
  column->addWidget(about_);
  column->addWidget(buttons_);
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(&glancer_, &Glancer::seen, this, &OpenSkinDialog::tell);
  addSkins(skins);
  propose(inHand);
  glancer_.lookAt(nearestFirst(skins, inHand));
}

OpenSkinDialog::~OpenSkinDialog() {
  glancer_.rest();
}

QLayout* OpenSkinDialog::makeSearch() {
  search_->setObjectName(QStringLiteral("search"));
  search_->setClearButtonEnabled(true);
  search_->installEventFilter(this);
  connect(search_, &QLineEdit::textChanged, this, &OpenSkinDialog::search);
  auto* row = new QHBoxLayout;
  QLabel* label = makeLabel(tr("&Search:"), search_);
  row->addWidget(label);
  row->addWidget(search_, 1);
  return row;
}

void OpenSkinDialog::setUpList() {
  list_->setObjectName(QStringLiteral("skins"));
  list_->setAccessibleName(tr("Skins"));
  list_->setViewMode(QListView::IconMode);
  list_->setMovement(QListView::Static);
  list_->setResizeMode(QListView::Adjust);
  list_->setUniformItemSizes(true);
  list_->setWordWrap(true);
  list_->setTextElideMode(Qt::ElideMiddle);
  list_->setEditTriggers(QListView::NoEditTriggers);
  list_->setIconSize(pictureRoom());
  const int text = kLines * list_->fontMetrics().lineSpacing();
  list_->setGridSize(pictureRoom() + QSize(kGap, text + kGap));
  found_.setSourceModel(&skins_);
  found_.setFilterRole(kName);
  found_.setFilterCaseSensitivity(Qt::CaseInsensitive);
  list_->setModel(&found_);
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  list_->setMinimumSize(list_->gridSize());
  resize(kRoom * list_->gridSize().width() + bar + 4 * kGap, screen()->availableSize().height() * 3 / 4);
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { tellProposed(); });
  connect(list_, &QListView::doubleClicked, this, [this] {
    if (!isBroken()) buttons_->button(QDialogButtonBox::Open)->click();
  });
}

void OpenSkinDialog::addSkins(const QStringList& skins) {
  for (const QString& name : skins) {
    auto* item = new QStandardItem;
    item->setData(name, kName);
    skins_.appendRow(item);
    tell(name);
  }
}

QString OpenSkinDialog::skin() const {
  return list_->currentIndex().data(kName).toString();
}

void OpenSkinDialog::propose(const QString& skin) {
  const QModelIndexList rows = found_.match(found_.index(0, 0), kName, skin, 1, Qt::MatchExactly);
  list_->setCurrentIndex(rows.isEmpty() ? found_.index(0, 0) : rows.first());
  list_->scrollTo(list_->currentIndex());
  tellProposed();
}

void OpenSkinDialog::search(const QString& word) {
  const QString proposed = skin();
  found_.setFilterFixedString(word);
  propose(proposed);
}

void OpenSkinDialog::tell(const QString& skin) {
  const QModelIndexList rows = skins_.match(skins_.index(0, 0), kName, skin, 1, Qt::MatchExactly);
  if (rows.isEmpty()) return;
  const SkinGlance* glance = glancer_.glance(skin);
  const QString about = glance ? aboutText(*glance, glancer_.findings(skin)) : QString();
  QStandardItem& item = *skins_.itemFromIndex(rows.first());
  item.setIcon(iconOf(*this, glance));
  item.setText(itemText(skin, glance));
  item.setToolTip(plainToolTip(skin + u'\n' + about));
  item.setData(QString(shownText(skin) + QStringLiteral(": ") + shownText(about)), Qt::AccessibleTextRole);
  if (this->skin() == skin) tellProposed();
}

void OpenSkinDialog::tellProposed() {
  const SkinGlance* glance = glancer_.glance(skin());
  buttons_->button(QDialogButtonBox::Open)->setEnabled(!skin().isEmpty());
  QString about = glance ? aboutText(*glance, glancer_.findings(skin())) : QString();
  if (skins_.rowCount() == 0) about = tr("There are no Skins in %1.").arg(root_);
  about_->setText(shownText(about) + (isBroken() ? endsText() : QString()));
}

bool OpenSkinDialog::isBroken() const {
  const SkinGlance* glance = glancer_.glance(skin());
  return glance && !glance->fault.isEmpty();
}

// The button itself takes the key when it has the focus.
void OpenSkinDialog::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter || !isBroken()) QDialog::keyPressEvent(event);
}

void OpenSkinDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  list_->scrollTo(list_->currentIndex());
}

bool OpenSkinDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched != search_ || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Down && key != Qt::Key_Up) return false;
  QCoreApplication::sendEvent(list_, event);
  return true;
}

}  // namespace veneerer
