// The one kind of failure: an error at run time, which nothing in the game handles. The services
// raise it, the face shows it once and the program ends.
#pragma once

#include <exception>
#include <string>

namespace brolgan {

enum class ErrorCode {
  overflow = 6,
  subscript = 9,
  typeMismatch = 13,
  fileNotFound = 53,
  deviceIo = 57,
  pastEnd = 62,
  pathAccess = 75,
  pathNotFound = 76,
  noSuchControl = 340,
  invalidPicture = 481,
};

// The wording of an error, in Polish, without number or place.
const char* wording(ErrorCode code);

// Where an error fell, as far as that is known; line 0 and empty texts mean unknown. An access that
// is refused always has a file, so that its empty text is an empty name.
struct ErrorPlace {
  std::string file;
  int line = 0;
  std::string field;
};

class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(ErrorCode code, ErrorPlace place = {});

  [[nodiscard]] ErrorCode code() const { return code_; }
  [[nodiscard]] const ErrorPlace& place() const { return place_; }
  // The whole text of the message box: number and wording, then file, line and field if known.
  [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

 private:
  ErrorCode code_;
  ErrorPlace place_;
  std::string text_;
};

}  // namespace brolgan
