#include "game/guide/next_hand.h"

#include <initializer_list>

#include "flow/text/number_text.h"
#include "game/guide/look.h"
#include "game/names/names.h"
#include "rules/weapons.h"

namespace brolgan {

namespace {

using guide::get;
using guide::isUsable;

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

// Whether the magic that the hero has pays for the chosen spell; what is typed may be no number.
bool hasMagic(Form& form) {
  const auto price = parseNumber(get<TextBox>(form, "mana").Text);
  const auto magic = parseNumber(get<Label>(form, "Pstat(2)").Caption);
  return price && magic && *price <= *magic;
}

bool canCast(Form& form) { return isUsable(form, "Rzuc") && hasChosen(form, "Czar") && hasMagic(form); }

bool canChoose(Form& form, const char* list) {
  return get<ComboBox>(form, list).ListCount() > 0 && !hasChosen(form, list);
}

bool isTypedIn(Form& form, const std::string& name) {
  return !name.empty() && std::holds_alternative<TextBox*>(form.controls().find(name).control);
}

}  // namespace

bool hasFallen(Form& form) {
  return isUsable(form, "CloseDMG") && get<Label>(form, "OpisDMG").Caption == verdicts::kDeath;
}

bool canStrike(Form& form) {
  return isUsable(form, "Atak") && hasChosen(form, "Bron") && (isUsable(form, "Rzuc") || hasStaffInHand(form));
}

std::string NextHand::begin(const std::string& screen, Form& form) {
  if (screen == screens::kSetUp) return beginSetUp(form);
  if (screen == screens::kShop) return beginShop(form);
  if (screen == screens::kPreparation) return beginPreparation(form);
  if (screen == screens::kFight) {
    castLast_ = false;
    castsInVain_ = false;
    return beginRound(form);
  }
  return firstUsable(form);
}

std::string NextHand::after(const std::string& screen, Form& form, const std::string& used,
                            const std::string& focused) {
  if (screen == screens::kFight) notice(form, used);
  const bool keeps = !focused.empty() && isUsable(form, focused);
  if (keeps && isTypedIn(form, focused)) return focused;
  if (screen == screens::kFight) {
    if (used == "NastTura") return beginRound(form);
    if (used == "Uzyj" && hasFallen(form)) return "CloseDMG";
    return keeps ? focused : restOfRound(form);
  }
  return keeps ? focused : firstUsable(form);
}

// A spell that was cast closes its button for the round; one that a hero can pay for and that leaves the
// button open is none of his.
void NextHand::notice(Form& form, const std::string& used) {
  if (used == "Atak") castLast_ = false;
  if (used != "Rzuc") return;
  castLast_ = !isUsable(form, "Rzuc");
  castsInVain_ = !castLast_ && canCast(form);
}

std::string NextHand::beginRound(Form& form) const {
  if (hasFallen(form)) return "CloseDMG";
  const bool casts = canCast(form) && !castsInVain_;
  if (castLast_ && casts) return "Rzuc";
  if (canStrike(form)) return "Atak";
  if (casts) return "Rzuc";
  if (!isUsable(form, "Atak")) return "NastTura";
  if (canChoose(form, "Bron")) return "Bron";
  return canChoose(form, "Czar") ? "Czar" : "NastTura";
}

std::string NextHand::restOfRound(Form& form) const {
  if (hasFallen(form)) return "CloseDMG";
  if (canStrike(form)) return "Atak";
  return canCast(form) && !castsInVain_ ? "Rzuc" : "NastTura";
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
