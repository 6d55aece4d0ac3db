#include <type_traits>

#include "state/state.h"

namespace zelvs {

namespace {

/// Calls action with a pointer to a value of the variable's own type.
template <class Action>
void withElement(const VariableName& variable, int index, Action action) {
  const int position = variable.count == 0 ? 0 : index - variable.firstIndex;
  void* element = static_cast<char*>(variable.first) + static_cast<std::ptrdiff_t>(position) * variable.width;
  if (variable.width == 1) {
    action(static_cast<std::uint8_t*>(element));
  } else if (variable.width == 2) {
    action(static_cast<std::int16_t*>(element));
  } else {
    action(static_cast<std::int32_t*>(element));
  }
}

}  // namespace

std::int64_t VariableName::read(int index) const {
  std::int64_t value = 0;
  withElement(*this, index, [&](const auto* element) { value = *element; });
  return value;
}

void VariableName::write(int index, std::int64_t value) const {
  withElement(*this, index,
              [&](auto* element) { *element = static_cast<std::remove_pointer_t<decltype(element)>>(value); });
}

bool VariableName::holds(std::int64_t value) const {
  const std::int64_t range = std::int64_t{1} << (8 * width);
  return value < range && value >= (isSigned ? -range / 2 : 0);
}

const std::vector<VariableName>& variableNames() {
  static const std::vector<VariableName> names = {
#define SHARED(type, name) {#name, &name, sizeof(type), std::is_signed_v<type>, 0, 0},
#define SHARED_ARRAY(type, name, first, last) \
  {#name, name.values, sizeof(type), std::is_signed_v<type>, first, (last) - (first) + 1},
#include "state/sharedVariables.h"
#undef SHARED
#undef SHARED_ARRAY
  };
  return names;
}

}  // namespace zelvs
