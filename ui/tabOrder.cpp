#include "ui/tabOrder.h"

#include <algorithm>
#include <utility>

#include "ui/form.h"

namespace zelvs {

namespace {

void appendInReadingOrder(std::vector<Control*> siblings, std::vector<Control*>& order) {
  std::stable_sort(siblings.begin(), siblings.end(), [](const Control* a, const Control* b) {
    return std::pair<double, double>(a->Top, a->Left) < std::pair<double, double>(b->Top, b->Left);
  });
  for (Control* control : siblings) {
    if (control->isField()) order.push_back(control);
    appendInReadingOrder(control->children(), order);
  }
}

}  // namespace

std::vector<Control*> tabOrder(const Form& form) {
  std::vector<Control*> order;
  appendInReadingOrder(form.topControls(), order);
  return order;
}

Control* nextInTabOrder(const Form& form, const Control* from, bool backwards) {
  std::vector<Control*> order = tabOrder(form);
  if (backwards) std::reverse(order.begin(), order.end());
  const auto at = std::find(order.begin(), order.end(), from);
  // Those behind it first, then round the end up to it.
  if (at != order.end()) std::rotate(order.begin(), at + 1, order.end());
  const auto next = std::find_if(order.begin(), order.end(),
                                 [](const Control* control) { return control->shown() && control->usable(); });
  return next == order.end() ? nullptr : *next;
}

}  // namespace zelvs
