// Whether all that a screen says can be read: nothing cut off, covered, or set too small.
#pragma once

#include <string>
#include <vector>

#include "tests/desktop/stage.h"

namespace brolgan::test {

// The widgets of the controls of a form that a person sees.
std::vector<QWidget*> seen(const Stage& stage, const std::string& form);

// Whether a window shows but a part of its page.
bool scrolls(const desktop::FormWindow& window);

// Expects a window no larger than its screen, each word and row of a list whole and at least 10
// pixels high, and every widget on the page and beside the others.
void expectFits(const Stage& stage, const std::string& form);

}  // namespace brolgan::test
