#include "game/guide/error_text.h"

#include <new>

#include "flow/text/runtime_error.h"

namespace brolgan {

namespace {

// Whether an error says that a file could not be found or used where it was looked for.
bool tellsOfAPath(ErrorCode code) {
  return code == ErrorCode::fileNotFound || code == ErrorCode::deviceIo || code == ErrorCode::pathAccess ||
         code == ErrorCode::pathNotFound || code == ErrorCode::invalidPicture;
}

std::string internalError(const std::string& what) { return "Błąd wewnętrzny: " + what; }

}  // namespace

std::string errorText(const std::exception_ptr& error, const std::function<std::string(const std::string&)>& folderOf) {
  try {
    std::rethrow_exception(error);
  } catch (const RuntimeError& known) {
    const std::string text = known.what();
    return tellsOfAPath(known.code()) ? text + "\nFolder: " + folderOf(known.place().file) : text;
  } catch (const std::bad_alloc&) {
    return internalError("brak pamięci");
  } catch (const std::exception& unknown) {
    return internalError(unknown.what());
  } catch (...) {
    return internalError("nieznany");
  }
}

}  // namespace brolgan
