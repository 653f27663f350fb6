// A program that was started to be looked at; it is ended with this object.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace brolgan::bench {

class Launched {
 public:
  // Starts the command in the present folder, its output thrown away.
  explicit Launched(const std::vector<std::string>& command);
  Launched(const Launched&) = delete;
  Launched& operator=(const Launched&) = delete;
  ~Launched();

  [[nodiscard]] pid_t process() const { return process_; }
  // Whether it has ended by itself.
  [[nodiscard]] bool ended();

 private:
  pid_t process_ = 0;
  bool ended_ = false;
};

}  // namespace brolgan::bench
