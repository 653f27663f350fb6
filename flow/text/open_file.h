// A file that is open for reading: the bytes at hand, and where those behind them come from.
#pragma once

#include <memory>
#include <string>

namespace brolgan {

class Source {
 public:
  Source() = default;
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;
  virtual ~Source() = default;

  // Puts the next bytes of the file behind those at hand; answers whether there were any left.
  // Raises deviceIo when they cannot be read.
  virtual bool appendTo(std::string& bytes) = 0;
};

struct OpenFile {
  std::string bytes;
  // Null when the bytes are all of the file.
  std::unique_ptr<Source> rest;
};

}  // namespace brolgan
