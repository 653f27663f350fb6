#include "flow/stage/controls.h"

namespace brolgan {

void Rows::RemoveItem(int row) {
  rows_.erase(rows_.begin() + row);
  if (selected_ == row) {
    selected_ = -1;
  } else if (selected_ > row) {
    --selected_;
  }
}

void Rows::Clear() {
  rows_.clear();
  selected_ = -1;
}

void Rows::ListIndex(int row) {
  selected_ = row;
  if (Click) Click();
}

std::string Rows::Text() const { return selected_ < 0 ? std::string() : List(selected_); }

}  // namespace brolgan
