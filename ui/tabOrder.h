#pragma once

#include <vector>

namespace zelvs {

class Control;
class Form;

/// The controls that the Tab key stops at, in its order: line by line as they stand, and through all of a group before
/// it goes on beside it. Those that cannot be worked at present are among them.
std::vector<Control*> tabOrder(const Form& form);
/// The next one that can be worked, behind from or before it, round the end; the first or last one when from is null
/// or none of the form's. Null when there is none.
Control* nextInTabOrder(const Form& form, const Control* from, bool backwards);

}  // namespace zelvs
