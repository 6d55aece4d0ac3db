#include "shell/ownFolder.h"

#include <filesystem>

namespace zelvs {

std::string ownFolder(const char* program) {
  std::error_code error;
  std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) self = std::filesystem::absolute(program, error);
  return self.parent_path().string();
}

}  // namespace zelvs
