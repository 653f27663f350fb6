// An array of the game: fixed places counted from 0, every access checked.
#pragma once

#include <array>
#include <cstddef>

#include "flow/text/integer.h"
#include "flow/text/runtime_error.h"

namespace brolgan {

template <class Element, std::size_t Size>
class Array {
 public:
  static constexpr int size = static_cast<int>(Size);

  // The element at index; raises subscript outside 0 to size - 1.
  Element& operator()(Integer index) { return places_[check(index)]; }
  const Element& operator()(Integer index) const { return places_[check(index)]; }

  auto begin() { return places_.begin(); }
  auto end() { return places_.end(); }
  auto begin() const { return places_.begin(); }
  auto end() const { return places_.end(); }

  friend bool operator==(const Array&, const Array&) = default;

 private:
  static std::size_t check(Integer index) {
    if (index < 0 || index >= size) throw RuntimeError(ErrorCode::subscript);
    return static_cast<std::size_t>(index.value());
  }

  std::array<Element, Size> places_{};
};

}  // namespace brolgan
