// The files of the game in the memory of the page: one working directory with a folder for music, which
// is gone with the page.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "flow/text/files.h"

namespace brolgan::web {

class PageFiles : public Files {
 public:
  OpenFile open(const std::string& name) override;
  void create(const std::string& name) override;
  void append(const std::string& name, std::string_view bytes) override;

  // Lays a file down from outside the game, in whatever folder.
  void put(const std::string& name, std::string bytes);
  [[nodiscard]] const std::map<std::string, std::string>& contents() const { return contents_; }

 private:
  std::map<std::string, std::string> contents_;  // by path, with slashes
};

}  // namespace brolgan::web
