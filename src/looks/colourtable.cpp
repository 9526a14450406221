#include "looks/colourtable.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <vector>

namespace veneerer::looks {

namespace {

constexpr std::size_t kColours = 256;

struct Counted {
  QRgb colour;
  int count;
};

int channel(QRgb colour, int which) {
  return which == 0 ? qRed(colour) : which == 1 ? qGreen(colour) : qBlue(colour);
}

struct ColourBox {
  std::vector<Counted> colours;
  int side = 0;  // the channel with the widest spread
  int spread = 0;

  explicit ColourBox(std::vector<Counted> all) : colours(std::move(all)) {
    for (int which = 0; which < 3; ++which) {
      const auto [low, high] =
          std::minmax_element(colours.begin(), colours.end(), [which](const Counted& a, const Counted& b) {
            return channel(a.colour, which) < channel(b.colour, which);
          });
      const int wide = channel(high->colour, which) - channel(low->colour, which);
      if (wide > spread) {
        spread = wide;
        side = which;
      }
    }
  }

  // The box's other half, cut at the median of its widest side.
  ColourBox split() {
    std::sort(colours.begin(), colours.end(), [this](const Counted& a, const Counted& b) {
      const int x = channel(a.colour, side), y = channel(b.colour, side);
      return x != y ? x < y : a.colour < b.colour;
    });
    const auto middle = colours.begin() + static_cast<std::ptrdiff_t>(colours.size() / 2);
    ColourBox other(std::vector<Counted>(middle, colours.end()));
    *this = ColourBox(std::vector<Counted>(colours.begin(), middle));
    return other;
  }

  QRgb mean() const {
    qint64 sum[3] = {}, count = 0;
    for (const Counted& c : colours) {
      for (int which = 0; which < 3; ++which)
        sum[which] += static_cast<qint64>(channel(c.colour, which)) * c.count;
      count += c.count;
    }
    const auto part = [&](int which) { return static_cast<int>((sum[which] + count / 2) / count); };
    return qRgb(part(0), part(1), part(2));
  }
};

std::vector<Counted> histogram(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) ++counts[line[x] | 0xff000000];
  }
  std::vector<Counted> colours;
  colours.reserve(counts.size());
  for (const auto& [colour, count] : counts) colours.push_back({colour, count});
  return colours;
}

std::vector<ColourBox> boxesOf(const QImage& image) {
  std::vector<ColourBox> boxes{ColourBox(histogram(image))};
  while (boxes.size() < kColours) {
    const auto widest =
        std::max_element(boxes.begin(), boxes.end(),
                         [](const ColourBox& a, const ColourBox& b) { return a.spread < b.spread; });
    if (widest->spread == 0) break;
    ColourBox other = widest->split();
    boxes.push_back(std::move(other));
  }
  return boxes;
}

}  // namespace

QImage indexed(const QImage& image) {
  const QImage source = image.convertToFormat(QImage::Format_RGB32);
  QList<QRgb> table;
  std::map<QRgb, uchar> places;
  for (const ColourBox& box : boxesOf(source)) {
    for (const Counted& c : box.colours) places[c.colour] = static_cast<uchar>(table.size());
    table.append(box.mean());
  }
  QImage result(source.size(), QImage::Format_Indexed8);
  result.setColorTable(table);
  // The bytes that pad a line are written to BMP files as they are, and filling leaves them alone.
  std::memset(result.bits(), 0, static_cast<std::size_t>(result.sizeInBytes()));
  for (int y = 0; y < source.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
    uchar* out = result.scanLine(y);
    for (int x = 0; x < source.width(); ++x) out[x] = places[line[x] | 0xff000000];
  }
  return result;
}

}  // namespace veneerer::looks
