#include "skintool/output.h"

#include <stdexcept>

namespace veneerer {

void print(std::FILE* out, const QByteArray& text) {
  const auto size = static_cast<std::size_t>(text.size());
  if (std::fwrite(text.constData(), 1, size, out) != size || std::fflush(out) != 0)
    throw std::runtime_error("the output can't be written");
}

}  // namespace veneerer
