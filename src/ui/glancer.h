// Looks at the Skins of the program's folder while the windows stay alive.
#pragma once

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include "gallery/skinglance.h"

namespace veneerer {

/// Threads of its own look at one Skin after the other: first all pictures, then all findings. What was seen
/// is kept for the next time. To be made in the interface's thread, which hears the signals.
class Glancer : public QObject {
  Q_OBJECT

public:
  /// The platform must outlive the glancer.
  Glancer(const Platform& platform, int mostSide);
  /// Waits for the Skins that are being looked at.
  ~Glancer() override;

  /// Looks at these from now on, in this order, in the place of those that wait.
  void lookAt(const QStringList& skins);
  /// Ends with the Skins that are being looked at.
  void rest();

  /// What is known of that Skin, null for one that wasn't looked at yet.
  const SkinGlance* glance(const QString& skin) const;
  /// How many findings it has, -1 when that isn't known yet.
  int findings(const QString& skin) const { return findings_.value(skin, -1); }

Q_SIGNALS:
  /// There is more to tell of that Skin.
  void seen(const QString& skin);

private:
  template <class Look, class Keep>
  void queue(const QString& skin, int priority, Look look, Keep keep);

  const Platform& platform_;
  int mostSide_;
  QHash<QString, SkinGlance> glances_;
  QHash<QString, int> findings_;
  QThreadPool pool_;
};

}  // namespace veneerer
