// What the games teach: three paragraphs for a first evening, and what each class is good at. All
// figures in the words are drawn from the games.
#pragma once

#include <string>

#include "simulation/report/measures.h"
#include "simulation/report/study.h"
#include "simulation/report/tallies.h"

namespace brolgan::simulation {

std::string adviceText(const Knowledge& known, const Study& study, const Tallies& tallies, const Measures& all);
std::string classTable(const Knowledge& known, const Study& study);

}  // namespace brolgan::simulation
