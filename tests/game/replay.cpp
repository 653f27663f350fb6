#include "tests/game/replay.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace brolgan::test {

namespace {

namespace fs = std::filesystem;

std::string readAll(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("no stored file " + path.string());
  return {std::istreambuf_iterator<char>(file), {}};
}

Act readAct(const std::string& line) {
  Act act;
  std::istringstream words(line);
  words >> act.verb >> act.form >> act.control;
  const std::size_t text = line.find(" = ");
  if (text != std::string::npos) act.text = line.substr(text + 3);
  return act;
}

}  // namespace

std::vector<Act> readActs(std::string_view lines) {
  std::vector<Act> acts;
  std::istringstream in{std::string(lines)};
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.front() != '#') acts.push_back(readAct(line));
  }
  return acts;
}

bool perform(World& world, const Act& act) {
  if (act.verb == "click") return world.click(act.form, act.control);
  if (act.verb == "select") return world.select(act.form, act.control, act.text);
  if (act.verb == "type") return world.type(act.form, act.control, act.text);
  if (act.verb != "close") throw std::runtime_error("no act " + act.verb);
  closeWindow(world.runtime, act.form);
  return true;
}

std::string describe(const Act& act) { return act.verb + " " + act.form + " " + act.control + " = " + act.text; }

void useStoredLists(World& world) {
  for (const char* name : {"bron.cfg", "monsters.cfg"}) {
    world.files.contents[name] = storedBytes(std::string("game/") + name);
  }
}

std::string storedBytes(const std::string& path) { return readAll(fs::path(BROLGAN_TEST_DATA) / path); }

StoredStates::StoredStates(std::string folder, Contents begin)
    : folder_(std::move(folder)), begin_(std::move(begin)), state_(begin_) {}

void StoredStates::clear() const { fs::remove_all(path("")); }

bool StoredStates::isWriting() { return std::getenv("BROLGAN_WRITE_EXPECTED") != nullptr; }

std::string StoredStates::path(const std::string& step) const {
  return (fs::path(BROLGAN_TEST_DATA) / folder_ / step).string();
}

std::vector<std::string> StoredStates::steps() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(path(""))) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

void StoredStates::apply(const std::string& step, Contents& files) const {
  for (const auto& entry : fs::directory_iterator(path(step))) {
    files[entry.path().filename().string()] = readAll(entry.path());
  }
}

Contents StoredStates::after(const std::string& step) const {
  Contents files = begin_;
  for (const std::string& name : steps()) {
    if (name <= step) apply(name, files);
  }
  return files;
}

void StoredStates::store(const std::string& step, const Contents& files) const {
  fs::create_directories(path(step));
  for (const auto& [name, bytes] : files) {
    const auto before = state_.find(name);
    if (before != state_.end() && before->second == bytes) continue;
    std::ofstream(fs::path(path(step)) / name, std::ios::binary) << bytes;
  }
}

void StoredStates::compare(const std::string& step, const Contents& files) {
  if (isWriting()) store(step, files);
  ASSERT_TRUE(fs::is_directory(path(step))) << "no stored files for " << step;
  apply(step, state_);
  for (const auto& [name, bytes] : state_) {
    const auto found = files.find(name);
    ASSERT_NE(found, files.end()) << step << ": " << name << " is missing";
    EXPECT_EQ(found->second, bytes) << step << ": " << name;
  }
  EXPECT_EQ(files.size(), state_.size()) << step << ": there are files that nobody expects";
}

std::string screenOf(const World& world) {
  for (const char* name : {"Main", "CTmhero", "CTsklep", "Prefight", "Fight"}) {
    if (world.isShown(name)) return name;
  }
  return {};
}

}  // namespace brolgan::test
