// Shares and means of what was seen, each with the interval that chance leaves open.
#pragma once

namespace brolgan::simulation {

// A share of cases, with the 95 % interval of Wilson.
struct Share {
  double part = 0;
  double whole = 0;

  void add(bool counts) {
    part += counts ? 1 : 0;
    whole += 1;
  }
  [[nodiscard]] double value() const { return whole > 0 ? part / whole : 0; }
  [[nodiscard]] double low() const;
  [[nodiscard]] double high() const;
};

// A mean, with its 95 % interval.
struct Mean {
  double count = 0;
  double sum = 0;
  double squares = 0;

  void add(double value) {
    count += 1;
    sum += value;
    squares += value * value;
  }
  [[nodiscard]] double value() const { return count > 0 ? sum / count : 0; }
  [[nodiscard]] double margin() const;
};

}  // namespace brolgan::simulation
