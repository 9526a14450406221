// Bytes as a row of choices; behind their end each choice is the first one.
#pragma once

#include <QByteArray>
#include <iterator>

namespace veneerer::fuzz {

class Choices {
public:
  explicit Choices(const QByteArray& bytes) : bytes_(bytes) {}

  bool atEnd() const { return at_ >= bytes_.size(); }
  int byte() { return atEnd() ? 0 : static_cast<unsigned char>(bytes_[at_++]); }
  bool truth() { return byte() % 2 == 1; }

  /// 0 to below - 1; below is at most 65536.
  int number(std::size_t below) {
    int told = byte();
    if (below > 256) told = told * 256 + byte();
    return below == 0 ? 0 : static_cast<int>(static_cast<std::size_t>(told) % below);
  }

  template <class Range>
  decltype(auto) of(Range& range) {
    return *std::next(std::begin(range), number(std::size(range)));
  }

private:
  QByteArray bytes_;
  qsizetype at_ = 0;
};

}  // namespace veneerer::fuzz
