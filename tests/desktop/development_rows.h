// The controls that the creation screen and the shop have alike, as rows of expectations for a hero
// at the first step of everything with nothing bought.
#pragma once

#include "tests/desktop/expected.h"

namespace brolgan::test {

inline Expectations ladderRows() {
  Expectations rows = labels(
      "Label5", {"Wytrzymałość", "Pancerz", "Moc", "Szybkość", "Regeneracja", "Modyfikator Obrażeń", "Wcielenia"},
      "fstat");
  const std::vector<std::string> tips = {
      "Wytrzymałość określa jak duże obrażenia zniesiesz, zanim zginiesz",
      "Pancerz określa wielkość obrażeń, które absorbuje Twoja skóra i ubiór",
      "Moc jest potrzebna do rzucania czarów. W czasie gry używa się Punktów Magii, aby rzucać zaklęcia. Są one równe "
      "Mocy i regenerują się do jej poziomu ( co turę odnawia się ilość równa regeneracji)",
      "Szybkość określa inicjatywę w walce",
      "Regeneracja określa ilość wytrzymałości i punktów magii, które regenerują się co turę",
      "Modyfikator Obrażeń(MO) określa siłę postaci - wpływa bezpośrednio na obrażenia zadawane w walce wręcz.",
      "Ilość wcieleń - jeśli zginiesz więcej razy niż wynosi ich ilość - przegrywasz grę! Koszt : 2"};
  for (std::size_t i = 0; i < tips.size(); ++i) rows[i].toolTip = tips[i];
  const std::vector<std::vector<std::string>> ladders = {
      {"12", "15", "18", "21", "24", "27", "30", "34", "38", "42", "46", "50"},
      {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
      {"2", "4", "6", "8", "11", "14", "17", "20"},
      {"6", "9", "12", "16", "20", "24", "29", "34"},
      {"1", "3", "5", "7", "10"},
      {"+k4", "+k6", "+k6+2", "+2k6", "+2k6+3"},
      {"1", "2", "3", "5", "8", "12"}};
  for (std::size_t i = 0; i < ladders.size(); ++i) {
    add(rows, labels("stat" + std::to_string(i + 1), ladders[i], "fstat", 0));
  }
  return rows;
}

inline Expectations weaponRows() {
  Expectations rows = labels("Label7", {"Broń do walki wręcz", "Broń strzelecka"}, "fbron");
  rows.push_back(label("Label3", "Bronie").in("fbron"));
  for (const std::string prefix : {"BW", "BS"}) {
    rows.push_back(label(prefix + "nazwa", "bron1").in("fbron").drawn(Ink::pale));
    rows.push_back(label(prefix + "dmg", "0").in("fbron").drawn(Ink::pale));
    rows.push_back(label(prefix + "cena", "0").in("fbron").drawn(Ink::pale));
    rows.push_back(label(prefix + "opis", "opis można rzucać czary").in("fbron").drawn(Ink::pale));
  }
  for (const char* name : {"Kupww", "Kupss"}) rows.push_back(button(name, "Kup").in("fbron"));
  for (const char* name : {"LBronww", "Lbronss"}) rows.push_back(expected(Kind::listBox, name).in("fbron"));
  return rows;
}

inline Expectations spellRows() {
  Expectations rows = labels("Label11", {"Nazwa", "Opis", "Cena"}, "fczar");
  add(rows, labels("Czarn",
                   {"Leczenie", "Damage !", "BullShots", "BOOM !", "AntyLeczenie", "Przyzwanie potwora", "Klasa III A",
                    "Kaczy Fart", "Teleportacja", "Autostart"},
                   "fczar"));
  for (const int i : {4, 5, 8})
    of(rows, member("Czarn", i)) = label(member("Czarn", i), of(rows, member("Czarn", i)).text).in("fczar").disabled();
  add(rows, labels("czarc", {"1", "1", "3", "4", "2", "3", "1", "3", "3", "2"}, "fczar"));
  add(rows, labels("Label13",
                   {"za 1 PM odzyskujesz k6 wytrzymałości", "za 2 PM zadaje 3k6 jednemu wrogowi",
                    "za 2+** PM zadaje 3k6 + ** wszystkim", "za 4 PM zadaje 2k30 jednemu wrogowi",
                    "za 3 PM powstrzymuje  leczenie na k3 tury",
                    "za 1-12 PM przyzywa potwora na wybrane przec Ciebie, nie zajęte miejsce",
                    "za 2 PM  zwiększa pancerz o k8 na 2k6 r ", "za 4 PM najbliższy atak nic Ci nie robi",
                    "za 3 PM przenosisz się do 3 pól dalej", "za 3 PM zwiększa inicjatywę o +k6"},
                   "fczar"));
  for (const int i : {0, 9}) of(rows, member("Label13", i)).ink = Ink::black;
  for (const int i : {1, 2, 3, 6, 7}) of(rows, member("Label13", i)).ink = Ink::purple;
  for (const int i : {4, 5, 8}) of(rows, member("Label13", i)).ink = Ink::green;
  rows.push_back(label("Label12", "Czar do rzucenia tylko na planszy").in("fczar").drawn(Ink::green));
  rows.push_back(label("Label10(0)", "Czar do rzucenia zawsze").in("fczar").drawn(Ink::black));
  rows.push_back(label("Label10(1)", "Czar do rzucenia tylko podczas walki").in("fczar").drawn(Ink::purple));
  return rows;
}

// The gear with the prices and the words of one of the two screens.
inline Expectations gearRows(const std::vector<std::string>& prices, const std::string& mortar,
                             const std::string& sucker) {
  Expectations rows;
  rows.push_back(label("Label17", "Granat")
                     .in("Frame4")
                     .tip("Cena 1. Zadaje k30 wszystkim przeciwnikom ( jesli rzucisz 1 - zadaje tobie). Jednorazowego "
                          "uzytku"));
  rows.push_back(label("ammo", "10 x ammo +k6")
                     .in("Frame4")
                     .tip("Cena 1. 10 sztuk wyśmienitej amunicji (+k6 do każdego strzału)"));
  add(rows, labels("wyp", {"0", "0"}, "Frame4"));
  add(rows, labels("Speccena", prices, "Frame4"));
  rows.push_back(label("Spec(0)", "Moździerz").in("Frame4").tip(mortar));
  rows.push_back(label("Spec(1)", "Pas Knura")
                     .in("Frame4")
                     .disabled()
                     .tip("Cena 1. Jeśli wygrasz inicjatywę z graczem masz 50% szans na to, że zaskoczysz go - nie "
                          "będziesz musiał podchodzić do niego, aby go zaatakować bronią do walki wręcz"));
  rows.push_back(label("Spec(2)", "Zasysacz").in("Frame4").tip(sucker));
  rows.push_back(label("Spec(3)", "Szperacz")
                     .in("Frame4")
                     .disabled()
                     .tip("Cena 2. Sam wybierasz sobie nagrod( w zakresie +1 do +4 od numeru potwora)"));
  return rows;
}

}  // namespace brolgan::test
