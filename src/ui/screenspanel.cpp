#include "ui/screenspanel.h"

#include <QElapsedTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "canvas/description.h"
#include "canvas/screens.h"
#include "preview/screenpicture.h"
#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kScreens = static_cast<int>(kScreenEntries.size());
constexpr int kSide = 160;  // of a small picture at most, device-independent pixels

constexpr int kGap = 16;  // between two of them and their names

// How long nothing must change before anything is painted.
constexpr std::chrono::milliseconds kRest(600);

// Between two pictures the interface has so many times as long for itself as one takes.
constexpr int kShare = 3;
constexpr qint64 kLongestPause = 5000;  // milliseconds

// What may be spent on scaling pictures smoothly for one screen, pixels.
constexpr qint64 kScalingAllowance = 12LL * 1024 * 1024;

// Which screen is shown is no change of any screen.
bool isOfTheShow(const Change& change, int entry) {
  const bool shows = change.property == Property::Visible || change.property == Property::StackOrder;
  return entry >= 0 && shows;
}

}  // namespace

ScreensPanel::ScreensPanel(const Ui& ui)
    : hands_(ui.hands),
      inSight_(ui.pictures.inSight()),
      screens_(new QListWidget),
      watching_(ui.hands.state().board.watch([this](const Change& change) { changed(change); })) {
  setWindowTitle(UiTexts::tr("Screens"));
  screens_->setObjectName(QStringLiteral("screens"));
  screens_->setAccessibleName(windowTitle());
  screens_->setToolTip(UiTexts::tr("The screens as the jukebox shows them; a click goes to one"));
  screens_->setViewMode(QListView::IconMode);
  screens_->setMovement(QListView::Static);
  screens_->setResizeMode(QListView::Adjust);
  screens_->setIconSize(QSize(kSide, kSide));
  addItems();
  compact(new QVBoxLayout(this))->addWidget(screens_);
  idle_.setSingleShot(true);
  idle_.callOnTimeout(this, [this] { work(); });
  const auto choose = [this] { hands_.choose(*hands_.state().form6.Combo6, screens_->currentRow()); };
  connect(screens_, &QListWidget::itemClicked, this, choose);
  connect(screens_, &QListWidget::itemActivated, this, choose);
  connect(&ui.pictures, &PictureFetcher::fetched, this, &ScreensPanel::changeAll);
  new Watch(*hands_.state().form6.Combo6, this, [this] { showChosen(); });
}

void ScreensPanel::addItems() {
  QPixmap empty(kSide, kSide * 3 / 4);
  empty.fill(Qt::transparent);
  for (int entry = 0; entry < kScreens; ++entry)
    screens_->addItem(new QListWidgetItem(QIcon(empty), screenTitle(entry)));
  makeRoomFor(empty.size());
}

void ScreensPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  inSight_.setAllSeen(true);
  showChosen();
  rest();
}

void ScreensPanel::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  inSight_.setAllSeen(false);
}

void ScreensPanel::showChosen() {
  screens_->setCurrentRow(hands_.state().form6.Combo6->listIndex());
}

void ScreensPanel::changed(const Change& change) {
  State& state = hands_.state();
  const bool isKept = &change.element == &*state.form4.Check9 || &change.element == &*state.form4.Check12;
  if (isKept) return changeAll();
  if (&change.element.window() != &state.form1) return;
  if (isOfTheShow(change, entryOf(state, change.element))) return;
  const int entry = entryHolding(state, change.element);
  if (entry < 0) return changeAll();
  changed_.insert(entry);
  rest();
}

void ScreensPanel::changeAll() {
  isAllChanged_ = true;
  rest();
}

void ScreensPanel::rest() {
  if (isVisible()) idle_.start(kRest);
}

void ScreensPanel::work() {
  if (!isVisible() || isUpToDate()) return;
  if (hands_.isActing()) return rest();
  await();
  QElapsedTimer taken;
  taken.start();
  paintNext();
  if (waiting_.empty()) return painter_.reset();
  idle_.start(static_cast<int>(std::min(taken.elapsed() * kShare, kLongestPause)));
}

/// Whether that screen shows something that has changed: its own, the frame's, or a screen kept behind it.
bool ScreensPanel::isAffected(int entry) const {
  if (isAllChanged_ || changed_.contains(entry)) return true;
  State& state = hands_.state();
  const Stage stage = stageOf(state, entry);
  return std::ranges::any_of(changed_, [&](int other) { return isShownOn(stage, screenOf(state, other)); });
}

void ScreensPanel::await() {
  if (changed_.isEmpty() && !isAllChanged_) return;
  for (int entry = 0; entry < kScreens; ++entry)
    if (std::ranges::find(waiting_, entry) == waiting_.end() && isAffected(entry)) waiting_.push_back(entry);
  changed_.clear();
  isAllChanged_ = false;
}

void ScreensPanel::paintNext() {
  const int entry = waiting_.front();
  waiting_.pop_front();
  if (!painter_) painter_ = std::make_unique<CanvasPainter>();
  painter_->setScalingAllowance(kScalingAllowance);
  const double device = devicePixelRatioF();
  QImage small =
      screenSketch(hands_.state(), hands_.screen(), *painter_, entry, static_cast<int>(kSide * device));
  small.setDevicePixelRatio(device);
  // A selected one keeps its colours, too.
  QIcon icon(QPixmap::fromImage(small));
  icon.addPixmap(QPixmap::fromImage(small), QIcon::Selected);
  screens_->item(entry)->setIcon(icon);
  makeRoomFor(small.deviceIndependentSize().toSize());
}

void ScreensPanel::makeRoomFor(QSize picture) {
  const QSize room(kSide + kGap, picture.height() + screens_->fontMetrics().height() + kGap);
  if (screens_->gridSize() != room) screens_->setGridSize(room);
}

}  // namespace veneerer
