#include "game/guide/inviting.h"

#include "flow/text/number_text.h"
#include "game/guide/look.h"
#include "game/guide/next_hand.h"
#include "game/guide/spoken.h"
#include "game/names/names.h"

namespace brolgan {

namespace {

using guide::get;

// A blow first, then the next round; a fallen hero sees to his wound.
std::string stepInFight(Form& form) {
  if (hasFallen(form)) return "CloseDMG";
  return canStrike(form) ? "Atak" : "NastTura";
}

// Nobody is saved while he owes points.
std::string stepOfCreation(Form& form) {
  const auto points = parseNumber(get<Label>(form, "Ile_jeszcze").Caption);
  return points && *points >= 0 ? "Save" : "";
}

bool isPaidFor(Form& form, const ControlEntry& good) {
  const std::string price = member(good.name == "Czarn" ? "czarc" : "Speccena", good.index);
  const auto asked = parseNumber(get<Label>(form, price).Caption);
  const auto points = parseNumber(get<Label>(form, "Ile_jeszcze").Caption);
  return asked && points && *asked <= *points;
}

}  // namespace

// Without a hero there is nothing to start.
std::string invitedStep(const std::string& screen, Form& form) {
  if (screen == screens::kSetUp) return get<Label>(form, "Czygra(0)").Caption.empty() ? "GraczM(0)" : "Start";
  if (screen == screens::kCreation) return stepOfCreation(form);
  if (screen == screens::kPreparation) return "Zakoncz";
  if (screen == screens::kFight) return stepInFight(form);
  return {};
}

bool isInviting(const std::string& screen, Form& form, const ControlEntry& entry, const std::string& step) {
  if (isCheckable(screen, entry)) return guide::isUsable(entry) && !isChecked(entry) && isPaidFor(form, entry);
  return entry.fullName() == step;
}

}  // namespace brolgan
