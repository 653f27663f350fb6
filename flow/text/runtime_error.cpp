#include "flow/text/runtime_error.h"

#include <utility>

#include "flow/text/integer.h"

namespace brolgan {

const char* wording(ErrorCode code) {
  switch (code) {
    case ErrorCode::overflow:
      return "Przepełnienie";
    case ErrorCode::subscript:
      return "Indeks poza zakresem";
    case ErrorCode::typeMismatch:
      return "Niezgodność typów";
    case ErrorCode::fileNotFound:
      return "Nie znaleziono pliku";
    case ErrorCode::deviceIo:
      return "Błąd wejścia/wyjścia urządzenia";
    case ErrorCode::pastEnd:
      return "Odczyt poza końcem pliku";
    case ErrorCode::pathAccess:
      return "Błąd dostępu do ścieżki lub pliku";
    case ErrorCode::pathNotFound:
      return "Nie znaleziono ścieżki";
    case ErrorCode::noSuchControl:
      return "Nie istnieje taki element tablicy formantów";
    case ErrorCode::invalidPicture:
      return "Nieprawidłowy obrazek";
  }
  return "Nieznany błąd";
}

namespace {

std::string describe(ErrorCode code, const ErrorPlace& place) {
  std::string text = "Błąd wykonania " + std::to_string(static_cast<int>(code)) + ": " + wording(code);
  const bool isEmptyName = code == ErrorCode::pathAccess && place.file.empty();
  if (isEmptyName || !place.file.empty()) text += "\nPlik: " + (isEmptyName ? "(pusta nazwa)" : place.file);
  if (place.line > 0) text += "\nWiersz: " + std::to_string(place.line);
  if (!place.field.empty()) text += "\nPole: " + place.field;
  return text;
}

}  // namespace

RuntimeError::RuntimeError(ErrorCode code, ErrorPlace place)
    : code_(code), place_(std::move(place)), text_(describe(code_, place_)) {}

void raiseOverflow() { throw RuntimeError(ErrorCode::overflow); }

}  // namespace brolgan
