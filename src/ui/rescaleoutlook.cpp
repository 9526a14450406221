#include "ui/rescaleoutlook.h"

#include <QVBoxLayout>

#include "elements/numbers.h"
#include "tools/rescalefactors.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

// What touch screens have, pixels.
constexpr QSize kScreens[] = {{640, 480},   {800, 480},   {800, 600},   {1024, 600},  {1024, 768},
                              {1280, 720},  {1280, 768},  {1280, 800},  {1280, 960},  {1280, 1024},
                              {1440, 900},  {1600, 900},  {1600, 1200}, {1680, 1050}, {1920, 1080},
                              {1920, 1200}, {2560, 1440}, {2560, 1600}, {3840, 2160}};

QString factorText(double factor) {
  return QStringLiteral("× ") + QString::number(factor, 'g', 4);
}

QString sizeText(QSize size) {
  return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

bool isSameShape(QSize one, QSize other) {
  return qint64{one.width()} * other.height() == qint64{one.height()} * other.width();
}

}  // namespace

RescaleOutlook::RescaleOutlook(const Ui& ui)
    : hands_(ui.hands), factors_(new QLabel), sizes_(new QMenu(this)) {
  factors_->setObjectName(QStringLiteral("rescaleFactors"));
  factors_->setTextFormat(Qt::PlainText);
  factors_->setWordWrap(true);
  // The commands below stay in their place while numbers are typed: no outlook takes more.
  factors_->setMinimumHeight(2 * factors_->fontMetrics().lineSpacing());
  factors_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* even = new QPushButton(UiTexts::tr("Even Scale"));
  even->setObjectName(QStringLiteral("evenScale"));
  even->setToolTip(UiTexts::tr("Fill in the numbers that scale both directions alike"));
  even->setMenu(sizes_);
  auto* commands = new QHBoxLayout;
  commands->addWidget(even);
  commands->addWidget(makeCommand(ui, *hands_.state().form6.Command10));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  column->addWidget(factors_);
  column->addLayout(commands);
  connect(sizes_, &QMenu::aboutToShow, this, &RescaleOutlook::listSizes);
  State& state = hands_.state();
  for (const Element* told :
       std::initializer_list<const Element*>{&*state.form6.Text7, &*state.form6.Text8, &state.form4.Text1[0],
                                             &state.form4.Text1[1], &state.form1})
    new Watch(*told, this, [this] { tell(); });
  tell();
}

void RescaleOutlook::tell() {
  const auto factors = rescaleFactors(hands_.state(), hands_.screen());
  if (!factors) return factors_->setText(UiTexts::tr("Factors: none for this size"));
  QString text = UiTexts::tr("Width %1, height %2, fonts %3")
                     .arg(factorText(factors->across), factorText(factors->down), factorText(factors->fonts));
  const QSize resolution = skinResolution(hands_.state());
  const QSize scaled(qRound(resolution.width() * factors->across),
                     qRound(resolution.height() * factors->down));
  if (!resolution.isEmpty())
    text = UiTexts::tr("%1; %2 to %3").arg(text, sizeText(resolution), sizeText(scaled));
  factors_->setText(text);
}

void RescaleOutlook::listSizes() {
  sizes_->clear();
  Form6& form = hands_.state().form6;
  addMatch(UiTexts::tr("Height as the &Width"), *form.Text7, Axis::X);
  addMatch(UiTexts::tr("Width as the &Height"), *form.Text8, Axis::Y);
  sizes_->addSeparator();
  const QSize now = skinResolution(hands_.state());
  for (const QSize screen : kScreens)
    if (screen != now && !now.isEmpty() && isSameShape(screen, now)) addSize(screen);
}

/// The other direction gets the factor of the one that is typed.
void RescaleOutlook::addMatch(const QString& text, TextBox& from, Axis axis) {
  const auto factor = factorOf(hands_.state(), hands_.screen(), leadingNumber(from.text()), axis);
  QAction* match = sizes_->addAction(text);
  match->setEnabled(factor.has_value());
  connect(match, &QAction::triggered, this, [this, axis, scale = factor.value_or(1)] {
    const QSize size = sizeForFactor(hands_.state(), hands_.screen(), scale);
    Form6& form = hands_.state().form6;
    if (axis == Axis::X)
      hands_.type(*form.Text8, QString::number(size.height()));
    else
      hands_.type(*form.Text7, QString::number(size.width()));
  });
}

void RescaleOutlook::addSize(QSize resolution) {
  const double factor = double(resolution.width()) / skinResolution(hands_.state()).width();
  const QAction* size =
      sizes_->addAction(UiTexts::tr("To %1 (%2)").arg(sizeText(resolution), factorText(factor)));
  connect(size, &QAction::triggered, this,
          [this, factor] { fill(sizeForFactor(hands_.state(), hands_.screen(), factor)); });
}

void RescaleOutlook::fill(QSize size) {
  Form6& form = hands_.state().form6;
  hands_.type(*form.Text7, QString::number(size.width()));
  hands_.type(*form.Text8, QString::number(size.height()));
}

}  // namespace veneerer
