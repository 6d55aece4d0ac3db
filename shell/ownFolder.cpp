#include "shell/ownFolder.h"

#include <filesystem>

namespace zelvs {

std::string ownFolder(const char* program) {
  std::error_code error;
  const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
  return (error ? std::filesystem::absolute(program) : self).parent_path().string();
}

}  // namespace zelvs
