#include "ui/takedialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "elements/printable.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr QSize kSize(420, 340);  // pixels

class TakeDialog : public QDialog {
public:
  TakeDialog(Operator& hands, QWidget& owner) : QDialog(&owner), hands_(hands) {
    setObjectName(QStringLiteral("takeLook"));
    setWindowTitle(UiTexts::tr("Take from Another Skin"));
    resize(kSize);
    auto* column = new QVBoxLayout(this);
    addSkins(column);
    whole_ = addPart(column, UiTexts::tr("This &screen's look"),
                     UiTexts::tr("Places, sizes, colours, fonts, styles and pictures"));
    addPart(column, UiTexts::tr("&Colours and fonts alone"),
            UiTexts::tr("Nothing moves, and no picture is copied"));
    whole_->setChecked(true);
    addButtons(column);
  }

private:
  void addSkins(QVBoxLayout* column) {
    auto* label = new QLabel(UiTexts::tr("&For the screen that is shown, take from:"));
    skins_ = new QListWidget;
    skins_->setAccessibleName(UiTexts::tr("Skins"));
    skins_->setToolTip(UiTexts::tr("The other Skins; none of them is changed"));
    label->setBuddy(skins_);
    const QString inHand = hands_.skinFolder().path().section(u'/', -1);
    for (const QString& skin : SkinsRoot(hands_.platform().folder).skins()) {
      if (skin == inHand) continue;
      auto* row = new QListWidgetItem(shownText(skin), skins_);
      row->setData(Qt::UserRole, skin);
    }
    skins_->setCurrentRow(0);
    connect(skins_, &QListWidget::itemDoubleClicked, this, &TakeDialog::take);
    column->addWidget(label);
    column->addWidget(skins_);
  }

  static QRadioButton* addPart(QVBoxLayout* column, const QString& text, const QString& tip) {
    auto* part = new QRadioButton(text);
    part->setToolTip(tip);
    column->addWidget(part);
    return part;
  }

  void addButtons(QVBoxLayout* column) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    column->addWidget(buttons);
    QPushButton* take = buttons->addButton(UiTexts::tr("&Take"), QDialogButtonBox::AcceptRole);
    take->setEnabled(skins_->currentItem() != nullptr);
    take->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &TakeDialog::take);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  }

  void take() {
    const QListWidgetItem* row = skins_->currentItem();
    if (!row) return;
    accept();
    hands_.takeLook(row->data(Qt::UserRole).toString(),
                    whole_->isChecked() ? LookPart::Whole : LookPart::ColoursAndFonts);
  }

  Operator& hands_;
  QListWidget* skins_ = nullptr;
  QRadioButton* whole_ = nullptr;
};

}  // namespace

void addTakeCommand(QMenu& menu, Operator& hands, QWidget& owner) {
  QAction* action = menu.addAction(UiTexts::tr("&Take from Another Skin..."));
  action->setStatusTip(UiTexts::tr("Give this screen the look that it has in another Skin"));
  QObject::connect(action, &QAction::triggered, &owner,
                   [&hands, &owner] { TakeDialog(hands, owner).exec(); });
}

}  // namespace veneerer
