#include "ui/helptopics.h"

#include <algorithm>

#include "help/manual.h"

namespace veneerer {

namespace {

constexpr HelpTopic kTopics[] = {
    // The windows.
    {"Form3", "opening"},
    {"canvas", "canvas"},
    {"inHandLine", "canvas"},
    {"zoom", "placing"},
    {"tryit", "trying"},
    {"keySheet", "shortcuts"},

    // The panel Tools, and its frames under their titles.
    {"Form6", "tools"},
    {"Form6.Combo6", "screens"},
    {"Form6.Text1", "captions"},
    {"Place and Size", "tools-places"},
    {"Button Style", "buttons"},
    {"All Other Buttons Properties", "tools"},
    {"Re-Scale Skin", "rescaling"},
    {"Colour Settings", "tools-colours"},
    {"Fonts", "tools-fonts"},
    {"Label Settings", "tools-fonts"},
    {"General Font Preview", "tools-fonts"},

    // The other panels.
    {"Form2", "button-settings"},
    {"Form4", "settings"},
    {"Form4.Command4", "saving"},
    {"Covers File", "covers"},
    {"Form5", "textures"},
    {"Album Frame", "covers"},
    {"inspector", "inspector"},
    {"outline", "outline"},
    {"history", "history"},
    {"problems", "problems"},
    {"compare", "compare"},
    {"screens", "screens"},

    // The dialogs.
    {"openSkin", "opening"},
    {"newSkin", "new-skin"},
    {"recolour", "recolour"},
    {"takeLook", "take"},
    {"nameOfSkin", "sharing"},
};

}  // namespace

std::span<const HelpTopic> helpTopics() {
  return kTopics;
}

QString helpPage(const QWidget* widget) {
  for (; widget; widget = widget->parentWidget()) {
    const QString name = widget->objectName();
    const auto* topic = std::ranges::find_if(
        kTopics, [&](const HelpTopic& each) { return name == QLatin1String(each.name); });
    if (topic != std::end(kTopics)) return QString::fromLatin1(topic->page);
  }
  return kManualIndex;
}

}  // namespace veneerer
