// A rescale by any way to the size that the canvas had brings each place back within a twip per step.
#include <cmath>

#include "designer/skinfixture.h"
#include "laws/law.h"

namespace veneerer {
namespace {

class Rescaling : public test::SkinFixture {
protected:
  Rescaling() { start(); }

  void rescaleTo(QSize pixels) {
    designer->type(*form6().Text7, QString::number(pixels.width()));
    designer->type(*form6().Text8, QString::number(pixels.height()));
    designer->click(*form6().Command10);
  }
  std::vector<std::array<float, 4>> places() {
    std::vector<std::array<float, 4>> all;
    for (const Family* family : form1().families())
      for (const Element* e : family->members())
        all.push_back({e->left(), e->top(), e->width(), e->height()});
    return all;
  }
  static double farthest(const std::vector<std::array<float, 4>>& one,
                         const std::vector<std::array<float, 4>>& other) {
    double most = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
      for (std::size_t k = 0; k < 4; ++k)
        most = std::max(most, std::abs(double(one[i][k]) - double(other[i][k])));
    return most;
  }
};

TEST_F(Rescaling, ThereAndBackStaysWithinATwipPerStep) {
  const QSize first(1024, 768);
  test::tryLaw(30, [&] {
    rescaleTo(first);
    const auto before = places();
    const auto side = rc::gen::inRange(64, 4000);
    const auto sizes = *rc::gen::container<std::vector<std::pair<int, int>>>(3, rc::gen::pair(side, side));
    for (const auto& [width, height] : sizes) {
      rescaleTo({width, height});
      if (width != first.width()) RC_ASSERT(farthest(before, places()) > 15);
    }
    rescaleTo(first);
    RC_ASSERT(farthest(before, places()) <= double(sizes.size()) + 1);
  });
}

}  // namespace
}  // namespace veneerer
