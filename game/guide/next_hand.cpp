#include "game/guide/next_hand.h"

#include <initializer_list>

#include "game/guide/look.h"
#include "game/names/names.h"
#include "rules/weapons.h"

namespace brolgan {

namespace {

using guide::get;
using guide::isUsable;
using guide::member;

constexpr int kPlayers = 4;

// The first control that can be used, of those in a frame when one is named.
std::string firstUsable(Form& form, const std::string& frame = {}) {
  const Frame* const within = frame.empty() ? nullptr : &get<Frame>(form, frame);
  for (const ControlEntry& entry : form.controls().entries()) {
    if (isUsable(entry) && (within == nullptr || entry.frame == within)) return entry.fullName();
  }
  return {};
}

// The next hero to be made, and when all are there, the start.
std::string beginSetUp(Form& form) {
  for (int i = 0; i < kPlayers; ++i) {
    if (get<Label>(form, member("Czygra", i)).Caption.empty()) return member("GraczM", i);
  }
  return "Start";
}

// The first department that is open.
std::string beginShop(Form& form) {
  for (const char* const department : {"fstat", "fbron", "fczar", "Frame4"}) {
    if (get<Frame>(form, department).Visible) return firstUsable(form, department);
  }
  return firstUsable(form);
}

// What there is to use before the fight, else the way into it.
std::string beginPreparation(Form& form) {
  for (const char* const list : {"Przedmioty", "Czary"}) {
    if (get<ComboBox>(form, list).ListCount() > 0) return list;
  }
  return "Zakoncz";
}

bool hasChosen(Form& form, const char* list) { return get<ComboBox>(form, list).ListIndex() >= 0; }

bool hasStaffInHand(Form& form) {
  const std::string weapon = get<ComboBox>(form, "Bron").Text();
  for (int i = kFirstStaff; i <= kLastStaff; ++i) {
    if (weapon == kWeaponNames[static_cast<std::size_t>(i)]) return true;
  }
  return false;
}

bool hasFallen(Form& form) { return isUsable(form, "CloseDMG") && get<Label>(form, "OpisDMG").Caption == "Śmierć!"; }

// A blow is open; behind a spell only with a staff.
bool canStrike(Form& form) {
  return isUsable(form, "Atak") && hasChosen(form, "Bron") && (isUsable(form, "Rzuc") || hasStaffInHand(form));
}

bool canCast(Form& form) { return isUsable(form, "Rzuc") && hasChosen(form, "Czar"); }

std::string beginRound(Form& form, bool castLast) {
  if (hasFallen(form)) return "CloseDMG";
  if (castLast && canCast(form)) return "Rzuc";
  if (canStrike(form)) return "Atak";
  if (canCast(form)) return "Rzuc";
  return isUsable(form, "Atak") ? "Bron" : "NastTura";
}

std::string restOfRound(Form& form) {
  if (hasFallen(form)) return "CloseDMG";
  if (canStrike(form)) return "Atak";
  return canCast(form) ? "Rzuc" : "NastTura";
}

bool isTypedIn(Form& form, const std::string& name) {
  return !name.empty() && std::holds_alternative<TextBox*>(form.controls().find(name).control);
}

}  // namespace

std::string NextHand::begin(const std::string& screen, Form& form) {
  if (screen == screens::kSetUp) return beginSetUp(form);
  if (screen == screens::kShop) return beginShop(form);
  if (screen == screens::kPreparation) return beginPreparation(form);
  if (screen == screens::kFight) {
    castLast_ = false;
    return beginRound(form, castLast_);
  }
  return firstUsable(form);
}

std::string NextHand::after(const std::string& screen, Form& form, const std::string& used,
                            const std::string& focused) {
  if (screen == screens::kFight && (used == "Atak" || used == "Rzuc")) castLast_ = used == "Rzuc";
  const bool keeps = !focused.empty() && isUsable(form, focused);
  if (keeps && isTypedIn(form, focused)) return focused;
  if (screen == screens::kFight) {
    if (used == "NastTura") return beginRound(form, castLast_);
    if (used == "Uzyj" && hasFallen(form)) return "CloseDMG";
    return keeps ? focused : restOfRound(form);
  }
  return keeps ? focused : firstUsable(form);
}

std::string escapeControl(const std::string& screen, Form& form) {
  if (screen == screens::kSheet) return "HeroClose";
  if (screen != screens::kFight) return {};
  for (const char* const button : {"CloseZad", "CloseDMG"}) {
    if (isUsable(form, button)) return button;
  }
  return {};
}

}  // namespace brolgan
