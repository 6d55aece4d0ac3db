#include "bench/settingLists.h"

#include <string>

#include "bench/pinModes.h"
#include "state/state.h"
#include "text/hexText.h"
#include "text/shortText.h"
#include "ui/runTimeError.h"

namespace zelvs {

void fillList(ListControl& list, std::span<const std::string_view> texts) {
  list.clear();
  for (const std::string_view text : texts)
    list.addItem(text);
}

void fillStations(ListControl& list) {
  list.clear();
  for (int station = 1; station <= kStations; ++station)
    list.addItem("0x" + hexText(static_cast<unsigned>(station), 2));
}

void fillIoModes(ListControl& list) {
  list.clear();
  for (const IoMode& mode : kIoModes)
    list.addItem(mode.text);
}

void selectSetting(ComboBox& list, std::string_view key, int value) {
  if (value < 0 || value >= list.ListCount()) {
    runTimeError(shortPath(iniFilePath) + ": " + std::string(key) + "=" + std::to_string(value) +
                 " is no position of the list " + list.fullName() + ", which has the positions 0 to " +
                 std::to_string(list.ListCount() - 1));
  }
  list.ListIndex = value;
}

}  // namespace zelvs
