// What other colours would look like, on the canvas, before anything is changed.
#pragma once

#include <QPointer>
#include <QTimer>
#include <vector>

#include "recolouring/colourmap.h"
#include "recolouring/faintcaptions.h"
#include "recolouring/storedcolours.h"
#include "ui/canvaswidget.h"

namespace veneerer {

/// Dresses the canvas and judges its captions, as fast as a slider moves. No element changes by it: whatever
/// the operator does meanwhile is done to the Skin as it is, and seen in the other colours.
class RecolourPreview : public QObject {
  Q_OBJECT

public:
  RecolourPreview(const Ui& ui, CanvasWidget& canvas);
  ~RecolourPreview() override;

  enum class Scope { WholeSkin, ThisScreen };

  /// Shows what becomes of the colours from now on, once the operator's events have been handled.
  void show(const ColourMap& map, Scope scope);

  /// The stored colours of the Skin, or of the screen that is shown.
  const std::vector<ColourPlace>& places() const { return places_; }

  /// What becomes of them, by the latest word.
  const Dress& dress();

  const std::vector<FaintCaption>& faint() const { return faint_.found(); }

Q_SIGNALS:
  /// There are other places, or other colours in them.
  void placesChanged();
  /// The captions have been judged: as soon as those of the screen that is shown are likely among them, and
  /// once all are.
  void judged(bool isAll);

private:
  void changed(const Change& change);
  void refresh();
  void gatherPlaces();
  void apply();
  void judgeSome();

  State& state_;
  QPointer<CanvasWidget> canvas_;  ///< gone ahead of it when the program ends
  Attachment watching_;
  FaintCaptions faint_;
  std::vector<ColourPlace> places_;
  ColourMap map_;
  Scope scope_ = Scope::WholeSkin;
  Dress dress_;
  bool isTold_ = false;   ///< something of the captions in these colours
  bool isMoved_ = false;  ///< something of the state has changed but its colours
  QTimer refreshing_;
  QTimer applying_;
  QTimer judging_;
};

}  // namespace veneerer
