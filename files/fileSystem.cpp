#include "files/fileSystem.h"

#include <utility>

namespace zelvs {

namespace {

FileSystem* theFileSystem = nullptr;

}  // namespace

FileSystem& fileSystem() {
  return theFileSystem != nullptr ? *theFileSystem : systemsFiles();
}

void setFileSystem(FileSystem* fileSystem) {
  theFileSystem = fileSystem;
}

std::error_code OpenFile::close() {
  const FileSystem::File file = std::exchange(file_, -1);
  return file >= 0 ? fileSystem().close(file) : std::error_code();
}

}  // namespace zelvs
