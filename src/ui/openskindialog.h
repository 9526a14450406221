// The dialog "Open Skin": all Skins of the program's folder by the picture of their main screen.
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include "ui/glancer.h"

namespace veneerer {

/// Changes nothing: it only chooses. Pictures and findings come in while it is open. A Skin that can't be
/// loaded is marked, and tells why and that opening it ends the program; only the button itself chooses it,
/// not a double click and not the key Enter elsewhere.
class OpenSkinDialog : public QDialog {
  Q_OBJECT

public:
  /// The longest side of a picture, device-independent pixels.
  static constexpr int kPictureSide = 200;

  /// skins are the names to choose from; the one in hand is proposed. root is told where there are none.
  OpenSkinDialog(Glancer& glancer, const QStringList& skins, const QString& inHand, const QString& root,
                 QWidget* parent);
  ~OpenSkinDialog() override;

  /// The name of the proposed Skin, the chosen one when the dialog was accepted; may be empty.
  QString skin() const;

protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// The arrow keys walk in the list while a word is typed.
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  QLayout* makeSearch();
  void setUpList();
  void addSkins(const QStringList& skins);
  void propose(const QString& skin);
  void search(const QString& word);
  void tell(const QString& skin);
  void tellProposed();
  /// Whether it is known that the proposed Skin can't be loaded.
  bool isBroken() const;

  Glancer& glancer_;
  QString root_;
  QStandardItemModel skins_;
  QSortFilterProxyModel found_;
  QLineEdit* search_;
  QListView* list_;
  QLabel* about_;
  QDialogButtonBox* buttons_;
};

}  // namespace veneerer
