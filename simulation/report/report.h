// Writes a study down: balans.md with its plots beside it, and the bare figures as CSV and JSON.
#pragma once

#include <string>

#include "simulation/report/study.h"

namespace brolgan::simulation {

// The line of the report by which it is known whether the data files have changed since.
std::string fingerprintLine(const DataFiles& data);

// Writes folder/balans.md, folder/balans/*.svg, folder/balans/gry.csv and folder/balans/wyniki.json.
void writeReport(const std::string& folder, const DataFiles& data, const Study& study);

}  // namespace brolgan::simulation
