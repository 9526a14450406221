// Which page of the manual tells about what.
#pragma once

#include <QWidget>
#include <span>

namespace veneerer {

struct HelpTopic {
  const char* name;  ///< the object name of a window, a panel, or a part of one
  const char* page;  ///< of the manual
};

std::span<const HelpTopic> helpTopics();

/// The page about the innermost part around that widget that there is one for; the index where there is none,
/// and for null.
QString helpPage(const QWidget* widget);

}  // namespace veneerer
