#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "support/program.h"

namespace zelvs {

/// How a program went that ran by itself.
struct Outcome {
  int status = -1;  ///< -1: a signal ended it
  std::string output;
  std::string errors;
};

/// Runs a program by a shell: its name, what stands behind it, the bytes of its standard input. It has ten seconds.
/// under: a command, or variables of the environment, that starts the one behind it.
inline Outcome runOutside(const std::string& program, const std::string& words, const std::string& input = {},
                          const std::string& under = {}) {
  const TemporaryFolder work;
  work.write("input", input);
  const std::string line = "timeout 10 env " + under + " '" + program + "' < '" + work.file("input") + "' > '" +
                           work.file("output") + "' 2> '" + work.file("errors") + "' " + words;
  const int result = std::system(line.c_str());
  return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, work.read("output"), work.read("errors")};
}

}  // namespace zelvs
