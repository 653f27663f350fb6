#include "departments/tips.h"

namespace brolgan {

const std::array<const char*, kStatistics> kStatisticTips = {
    "Wytrzymałość określa jak duże obrażenia zniesiesz, zanim zginiesz",
    "Pancerz określa wielkość obrażeń, które absorbuje Twoja skóra i ubiór",
    "Moc jest potrzebna do rzucania czarów. W czasie gry używa się Punktów Magii, aby rzucać zaklęcia. Są one "
    "równe Mocy i regenerują się do jej poziomu ( co turę odnawia się ilość równa regeneracji)",
    "Szybkość określa inicjatywę w walce",
    "Regeneracja określa ilość wytrzymałości i punktów magii, które regenerują się co turę",
    "Modyfikator Obrażeń(MO) określa siłę postaci - wpływa bezpośrednio na obrażenia zadawane w walce wręcz.",
    "Ilość wcieleń - jeśli zginiesz więcej razy niż wynosi ich ilość - przegrywasz grę! Koszt : 2",
};

const std::array<const char*, kClasses> kClassTips = {
    "Wojownik zaczyna posiadając 45% bonus do broni o zasięgu bezpośrednim",
    "Strzelec zaczyna posiadając 55% bonus do broni strzeleckich",
    "Czarownik regeneruje ilosć many (1-3) zależną od jego współczynnika regeneracji w każdej rundzie walki",
    "Wiedźmin zadaje w walce wręcz dodatkowe (1-10) zależne od jego szybkości",
    "Awanturnik zdobywa o 45% więcej punktów za pokonane stwory",
    "Satrapa rozpoczyna grę posiadając dodatkowe 4 punkty rozwoju",
    "Berserker nie może rzucać czarów podczas walki. Brońmi do walki wręcz atakuje dwukrotnie podczas walki",
    "Uzyskujesz 3 razy więcej punktów rozwoju za zabite potory, jednak wszystkie niewydane przepadają po wyjściu ze "
    "sklepu",
    "Mnich odzyskuje maxa zycia i many po zakończeniu walki",
    "Złota rączka uzyskuje bonus +5 do obrażeń zadawanych każdym typem broni",
};

namespace {

constexpr const char* kBoarBeltTip =
    "Cena 1. Jeśli wygrasz inicjatywę z graczem masz 50% szans na to, że zaskoczysz go - nie będziesz musiał "
    "podchodzić do niego, aby go zaatakować bronią do walki wręcz";
constexpr const char* kRummagerTip = "Cena 2. Sam wybierasz sobie nagrod( w zakresie +1 do +4 od numeru potwora)";

}  // namespace

const std::array<const char*, kGear> kCreationGearTips = {
    "Cena 1. Zwiększa obrażenia zadawane przez granat o 8", kBoarBeltTip,
    "Cena 1. Każde trafienie z broni palnej zmniejsza pancerz przeciwnika o 1k3", kRummagerTip};

const std::array<const char*, kGear> kShopGearTips = {
    "Cena 7. Zwiększa obrażenia zadawane przez granat o 8", kBoarBeltTip,
    "Cena 9. Każde trafienie z broni palnej zmniejsza pancerz przeciwnika o k3", kRummagerTip};

const std::array<const char*, kSupplies> kSupplyTips = {
    "Cena 1. Zadaje k30 wszystkim przeciwnikom ( jesli rzucisz 1 - zadaje tobie). Jednorazowego uzytku",
    "Cena 1. 10 sztuk wyśmienitej amunicji (+k6 do każdego strzału)",
};

Colour colourOf(SpellGroup group) {
  switch (group) {
    case SpellGroup::fight:
      return Colour::purple;
    case SpellGroup::board:
      return Colour::green;
    case SpellGroup::always:
      break;
  }
  return Colour::black;
}

}  // namespace brolgan
