// What the message box says of an error; for every face alike.
#pragma once

#include <exception>
#include <functional>
#include <string>

namespace brolgan {

// A run-time error of the game in its own words, and where its file was looked for when it tells of a
// path: folderOf answers the folder of a file by the name that the game gave it, which may be empty.
// Everything else is an internal error.
std::string errorText(const std::exception_ptr& error, const std::function<std::string(const std::string&)>& folderOf);

}  // namespace brolgan
