#include "ui/boundedFile.h"

#include <cstdint>
#include <filesystem>

#include "text/textFile.h"

namespace zelvs {

std::optional<std::string> readBoundedFile(const std::string& path, std::string& refusal, std::size_t most) {
  refusal.clear();
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error || size <= most) return readFile(path);
  refusal = "larger than " + std::to_string(most) + " bytes";
  return std::nullopt;
}

}  // namespace zelvs
