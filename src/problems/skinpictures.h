// The picture files of a Skin's folder, and which of them a reference may mean.
#pragma once

#include <QStringList>

#include "platform/skinfolder.h"

namespace veneerer {

class SkinPictures {
public:
  /// The folder is listed when it is first asked for, folders within included.
  explicit SkinPictures(const SkinFolder& folder) : folder_(folder) {}

  /// A reference ("\images\queue.jpg") to the file that is the likeliest to be meant by one that leads
  /// nowhere: the same bare name elsewhere or in another case, else the same with another extension; those of
  /// the images folder first. Empty where there is none, or its name doesn't come back from a record file.
  QString likeliest(const QString& reference);

  /// A name below the images folder, which may not be there yet, for a copy of that file: one that is free
  /// and comes back from a record file. "images/queue 2.jpg".
  QString freeName(const QString& path) const;

private:
  void list();
  QString imagesFolder() const;

  SkinFolder folder_;
  QStringList names_;  ///< below the folder, the likelier places first
  bool isListed_ = false;
};

/// How a record file names a file below the Skin's folder: "images/queue.jpg" is "\images\queue.jpg".
QString referenceTo(const QString& name);

}  // namespace veneerer
