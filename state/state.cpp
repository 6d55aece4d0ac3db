#include "state/state.h"

#include <cstring>
#include <string>

#include "state/randomSource.h"

namespace zelvs {

void sharedIndexError(int index, int first, int last) {
  runTimeError("index " + std::to_string(index) + " is outside " + std::to_string(first) + " to " +
               std::to_string(last));
}

void clearState() {
  for (const VariableName& variable : variableNames()) {
    std::memset(
        variable.first, 0,
        static_cast<std::size_t>(variable.width) * static_cast<std::size_t>(variable.count == 0 ? 1 : variable.count));
  }
  programFolder.clear();
  iniFilePath.clear();
  naviDataPath.clear();
  naviIndex.clear();
  clearRandom();
}

}  // namespace zelvs
