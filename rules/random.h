// The source of all chance. Screens seed it from the time of day when they load; tests script it.
// Nothing cosmetic may draw from it, since the order of draws is part of the rules.
#pragma once

#include <random>
#include <vector>

namespace brolgan {

class RandomSource {
 public:
  RandomSource() = default;
  RandomSource(const RandomSource&) = delete;
  RandomSource& operator=(const RandomSource&) = delete;
  virtual ~RandomSource() = default;

  // Starts the sequence that belongs to a time of day, all its digits counting.
  virtual void seed(double secondsSinceMidnight) = 0;
  // The next number, 0 <= r < 1, in steps of 2 to the power -24.
  virtual float next() = 0;
};

class SeededRandom : public RandomSource {
 public:
  void seed(double secondsSinceMidnight) override;
  float next() override;

 private:
  std::mt19937_64 engine_;
};

// Gives a fixed row of numbers and ignores all seeding. Raises std::out_of_range when it runs dry,
// so that a test notices every draw that it did not foresee.
class ScriptedRandom : public RandomSource {
 public:
  explicit ScriptedRandom(std::vector<float> numbers = {}) : numbers_(std::move(numbers)) {}

  void seed(double) override {}
  float next() override { return numbers_.at(used_++); }

  void add(float number) { numbers_.push_back(number); }
  // How many numbers have not been drawn yet.
  [[nodiscard]] std::size_t left() const { return numbers_.size() - used_; }

 private:
  std::vector<float> numbers_;
  std::size_t used_ = 0;
};

}  // namespace brolgan
