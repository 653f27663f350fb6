#include "launched.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace brolgan::bench {

Launched::Launched(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_WRONLY, 0);
  }
  const int failed = posix_spawn(&process_, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) throw std::runtime_error("cannot start " + command[0]);
}

Launched::~Launched() {
  if (ended()) return;
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

bool Launched::ended() {
  ended_ = ended_ || waitpid(process_, nullptr, WNOHANG) == process_;
  return ended_;
}

}  // namespace brolgan::bench
