// The two stock controls that the windows need in a form of their own.
#pragma once

#include <QComboBox>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>

namespace veneerer {

/// A combo box whose shown text need not be one of its rows, and that the mouse wheel leaves alone: a row
/// chosen in passing would restyle the Skin, or load another one. The wheel scrolls what the box stands in.
class TextCombo : public QComboBox {
public:
  explicit TextCombo(QWidget* parent = nullptr);

  /// Shows rows, the chosen one (-1 for none) and the text, without telling anybody.
  void present(const QStringList& rows, int row, const QString& text);

  /// Rows are shown in full, however narrow the box is.
  void showPopup() override;

protected:
  /// A text that is too long for it stands ahead of its tool tip.
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

private:
  int room() const;
  bool isCut() const;

  QStringList rows_;
  QString text_;  ///< as it is shown
};

/// A push button no wider than its text asks for.
class TightButton : public QPushButton {
public:
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
};

/// A list that knows a choice from a mere move of the highlight.
class RowListView : public QListView {
  Q_OBJECT

public:
  explicit RowListView(QWidget* parent = nullptr);

  /// Shows rows and the chosen one, -1 for none, without telling anybody.
  void present(const QStringList& rows, int row);
  /// Whether the arrow keys choose as they go; else Enter or the space bar does.
  void setArrowsChoose(bool choose) { arrowsChoose_ = choose; }

  QSize sizeHint() const override { return QSize(120, 90); }

Q_SIGNALS:
  /// The operator chose that row, which may be the one chosen before.
  void chosen(int row);
  void choseTwice(int row);

protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  void tell();

  QStringListModel model_;
  QStringList rows_;
  bool pressed_ = false;
  bool arrowsChoose_ = false;
};

}  // namespace veneerer
