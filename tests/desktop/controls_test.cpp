// Every control of every screen is a widget under its own name, and says and shows what it should.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QRadioButton>

#include "tests/desktop/development_rows.h"
#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

std::string title(const Stage& stage, const std::string& form) {
  return stage.window(form).windowTitle().toStdString();
}

const std::vector<std::string> kMelee = {"Nóż",   "Okuty kij", "Laska",           "Magustaffi",      "Rózgacz",
                                         "Tasak", "Miecz",     "Kordelas Chaosu", "Rysik Ślusarski", "Oczożłop"};
const std::vector<std::string> kRanged = {"Łuk",    "Pistolet",   "Strzelba",        "Karabin",       "Działo",
                                          "Marker", "MultiBleed", "Intrusion Rifle", "Reaper Cannon", "UltiGun"};

TEST(Controls, TitleShowsTwoPicturesUnderItsName) {
  Stage stage;
  stage.start();
  EXPECT_EQ(title(stage, "Brolgan"), "Brolgan XP version");
  EXPECT_EQ(stage.window("Brolgan").objectName().toStdString(), "Brolgan");
  expectScreen(stage, "Brolgan", {expected(Kind::picture, "pics(0)"), expected(Kind::picture, "pics(1)")});
}

TEST(Controls, StartFormHasNoWindow) {
  Stage stage;
  stage.start();
  EXPECT_EQ(stage.face.window("Starter"), nullptr);
}

TEST(Controls, SetUpShowsItsTable) {
  Stage stage;
  stage.start();
  Expectations rows = labels("Czygra", {"", "", "", ""});
  for (int i = 0; i < 4; ++i) {
    rows.push_back(expected(Kind::textBox, member("gracz", i), "hero" + std::to_string(i + 1) + ".boh"));
    rows.push_back(button(member("GraczM", i), "Stwórz"));
  }
  rows.push_back(expected(Kind::textBox, "ile_punktow", "12"));
  rows.push_back(button("Start", "Zacznij"));
  rows.push_back(label("Label1", "Bohaterowie graczy"));
  rows.push_back(label("Label2", "Ile punktów startowych"));
  rows.push_back(label("Label3", "Kliknij na nazwie pliku, aby stworzyć bohatera "));
  rows.push_back(label("Label4", "Czy gra?"));
  EXPECT_EQ(title(stage, "Main"), "MainGame");
  expectScreen(stage, "Main", rows);
}

Expectations classRows() {
  const std::vector<std::pair<std::string, std::string>> classes = {
      {"Wojownik", "Wojownik zaczyna posiadając 45% bonus do broni o zasięgu bezpośrednim"},
      {"Strzelec", "Strzelec zaczyna posiadając 55% bonus do broni strzeleckich"},
      {"Czarownik",
       "Czarownik regeneruje ilosć many (1-3) zależną od jego współczynnika regeneracji w każdej rundzie walki"},
      {"Wiedźmin", "Wiedźmin zadaje w walce wręcz dodatkowe (1-10) zależne od jego szybkości"},
      {"Awanturnik", "Awanturnik zdobywa o 45% więcej punktów za pokonane stwory"},
      {"Satrapa", "Satrapa rozpoczyna grę posiadając dodatkowe 4 punkty rozwoju"},
      {"Berserker",
       "Berserker nie może rzucać czarów podczas walki. Brońmi do walki wręcz atakuje dwukrotnie podczas walki"},
      {"Ryzykant",
       "Uzyskujesz 3 razy więcej punktów rozwoju za zabite potory, jednak wszystkie niewydane przepadają po wyjściu ze "
       "sklepu"},
      {"Zabobonny mnich zakonny", "Mnich odzyskuje maxa zycia i many po zakończeniu walki"},
      {"Złota rączka", "Złota rączka uzyskuje bonus +5 do obrażeń zadawanych każdym typem broni"}};
  Expectations rows;
  for (int i = 0; i < 10; ++i) {
    const auto& [caption, tip] = classes[static_cast<std::size_t>(i)];
    rows.push_back(expected(Kind::option, member("Klasa", i), caption).in("Frame6").tip(tip));
  }
  return rows;
}

Expectations creationFrames() {
  Expectations rows;
  for (const char* name : {"Frame6", "fstat", "fbron", "fczar", "Frame4", "Frame5"}) {
    rows.push_back(expected(Kind::frame, name));
  }
  rows.push_back(label("Label14", "Klasa bohatera").in("Frame6"));
  rows.push_back(label("Label4(0)", "Rozwijanie statystyk:").in("fstat"));
  rows.push_back(label("Label4(1)", "Czary").in("fczar"));
  rows.push_back(label("Label4(2)", "Wyposażenie dodatkowe").in("Frame4"));
  rows.push_back(label("Label4(3)", "Zapisywanie").in("Frame5"));
  rows.push_back(expected(Kind::textBox, "Plik", "hero1.boh").in("Frame5").hidden());
  rows.push_back(button("Save", "Zapisz").in("Frame5"));
  return rows;
}

Expectations creationRows() {
  Expectations rows = creationFrames();
  rows.push_back(label("Label1", "Tworzenie bohatera"));
  rows.push_back(label("Label2", "Pozostało punktów :"));
  rows.push_back(label("Ile_jeszcze", "12").drawn(Ink::badge));
  rows.push_back(expected(Kind::textBox, "Imie", "Kosiarz"));
  rows.push_back(label(
      "Label15",
      "Ceny przy tworzeniu bohatera są zazwyczaj niższe od sklepowych. Cechy kosztują w sklepie 2 punkty, "
      "moździerz 7, zasysacz 9. Ceny broni i czarów nie zmieniają się. Po wybraniu klasy bohatera nie będziesz już "
      "mógł jej zmienić do końca gry. Wcielenia możesz kupić tylko teraz. W sklepie nie zawsze znajduje się to, "
      "czego potrzebujesz - często trzeba na to poczekać..."));
  for (int i = 0; i < 3; ++i) rows.push_back(expected(Kind::picture, member("pics", i)));
  for (int i = 0; i < 9; ++i) {
    const std::string frame = i < 7 ? "fstat" : "Frame4";
    rows.push_back(button(member("PLUS", i), "+").in(frame));
    rows.push_back(button(member("MINUS", i), "--").in(frame));
  }
  for (const char* name : {"Sprzedajww", "Sprzedajss"}) rows.push_back(button(name, "Sprzedaj").in("fbron"));
  add(rows, labels("Label6", {"Nazwa", "Obrażenia", "Cena", "Opis", "Nazwa", "Obrażenia", "Cena", "Opis"}, "fbron"));
  add(rows, classRows());
  add(rows, ladderRows());
  add(rows, weaponRows());
  add(rows, spellRows());
  add(rows, gearRows({"1", "1", "1", "2"}, "Cena 1. Zwiększa obrażenia zadawane przez granat o 8",
                     "Cena 1. Każde trafienie z broni palnej zmniejsza pancerz przeciwnika o 1k3"));
  return rows;
}

TEST(Controls, CreationShowsItsTable) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  EXPECT_EQ(title(stage, "CTmhero"), "Tworzenie bohatera");
  expectScreen(stage, "CTmhero", creationRows());
  EXPECT_EQ(stage.rows("CTmhero", "LBronww"), kMelee);
  EXPECT_EQ(stage.rows("CTmhero", "Lbronss"), kRanged);
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(stage.get<QRadioButton>("CTmhero", member("Klasa", i)).isChecked(), i == 0) << i;
  }
}

const std::vector<std::string> kZoneCaptions = {
    "Jaskinia małych", "Jama średnich", "Pieczara niekiepych", "Galeria mocniejszych", "Huta Zła", "Niszczyciele",
    "Twardziele",      "Mocarze",       "Nadmocarze",          "PonadNadMocarze",      "Pandoria", "Tron Królów"};

Expectations shopFrames() {
  Expectations rows;
  for (const char* name : {"fstat", "fbron", "fczar", "Frame4", "Frame5"}) rows.push_back(expected(Kind::frame, name));
  rows.push_back(label("Label4(0)", "Rozwijanie statystyk:").in("fstat"));
  rows.push_back(label("Label4(1)", "Czary").in("fczar"));
  rows.push_back(label("Label4(2)", "Wyposażenie dodatkowe").in("Frame4"));
  rows.push_back(button("Save", "Tak, Koniec").in("Frame5").hidden().disabled());
  rows.push_back(expected(Kind::textBox, "Plik", "hero1.boh").hidden());
  for (int i = 1; i <= 12; ++i) {
    rows.push_back(button("w" + std::to_string(i), kZoneCaptions[static_cast<std::size_t>(i - 1)]).in("Frame5"));
  }
  return rows;
}

Expectations shopRows() {
  Expectations rows = shopFrames();
  rows.push_back(label("Label1", "Sklep"));
  rows.push_back(label("Label2", "Pozostało punktów :"));
  rows.push_back(label("Ile_jeszcze", "40").drawn(Ink::badge));
  rows.push_back(label("Label15", "Tura numer:"));
  rows.push_back(label("Tura", "1"));
  rows.push_back(label("Label14", "Towar raz kupiony nie podlega zwrotowi !!!"));
  rows.push_back(expected(Kind::textBox, "Imie", "Kosiarz"));
  rows.push_back(button("Heroshow", ""));
  for (int i = 0; i < 5; ++i) rows.push_back(expected(Kind::picture, member("pics", i)));
  for (const int i : {0, 1, 2, 3, 4, 5, 7, 8}) {
    rows.push_back(button(member("PLUS", i), "+").in(i < 6 ? "fstat" : "Frame4"));
  }
  for (const auto& [i, value] : {std::pair(0, "9"), std::pair(1, "20"), std::pair(2, "1")}) {
    rows.push_back(label(member("akt", i), value).in("fstat").drawn(Ink::current));
  }
  add(rows, labels("Label6", {"Nazwa", "Obrażenia", "Cena", "Opis", "Opis", "Cena", "Obrażenia", "Nazwa"}, "fbron"));
  add(rows, ladderRows());
  add(rows, weaponRows());
  add(rows, spellRows());
  add(rows, gearRows({"7", "1", "9", "2"}, "Cena 7. Zwiększa obrażenia zadawane przez granat o 8",
                     "Cena 9. Każde trafienie z broni palnej zmniejsza pancerz przeciwnika o k3"));
  return rows;
}

// What the shop shows of a hero who has taken steps and owns goods.
Expectations shopRowsOfRichHero() {
  Expectations rows = shopRows();
  of(rows, "stat3(0)").ink = Ink::plain;
  of(rows, "stat3(7)").ink = Ink::red;
  for (const int i : {0, 1, 2, 3, 6, 7, 9}) of(rows, member("Czarn", i)).ink = Ink::red;
  of(rows, "Spec(2)").ink = Ink::red;
  of(rows, "wyp(0)").text = "2";
  of(rows, "wyp(1)").text = "10";
  return rows;
}

Bohater shopHero() {
  Bohater hero = richHero();
  hero.Poziomy(2) = 8;
  hero.MaSpec(2) = true;
  return hero;
}

TEST(Controls, ShopShowsItsTable) {
  Stage stage;
  setShop(stage.world, shopHero());
  stage.open({"CTsklep"});
  EXPECT_EQ(title(stage, "CTsklep"), "Sklep ");
  expectScreen(stage, "CTsklep", shopRowsOfRichHero());
  EXPECT_EQ(stage.rows("CTsklep", "LBronww"), kMelee);
  EXPECT_EQ(stage.rows("CTsklep", "Lbronss"), kRanged);
}

TEST(Controls, ShopShowsItsTableStillAfterAnEvent) {
  Stage stage;
  setShop(stage.world, shopHero());
  stage.open({"CTsklep"});
  stage.click("CTsklep", "PLUS(1)");
  Expectations rows = shopRowsOfRichHero();
  of(rows, "Ile_jeszcze").text = "38";
  of(rows, "stat2(0)").ink = Ink::plain;
  of(rows, "stat2(1)").ink = Ink::red;
  expectScreen(stage, "CTsklep", rows);
}

TEST(Controls, ClosedDepartmentsHideAllThatTheyHold) {
  const std::vector<std::vector<std::string>> closed = {{}, {"fbron", "fczar"}, {"fbron", "fstat"}, {"fstat", "fczar"}};
  for (int mode = 1; mode <= 4; ++mode) {
    SCOPED_TRACE(mode);
    Stage stage;
    setShop(stage.world, shopHero(), mode);
    stage.open({"CTsklep"});
    Expectations rows = shopRowsOfRichHero();
    for (const std::string& frame : closed[static_cast<std::size_t>(mode - 1)]) {
      for (Expected& row : rows) {
        if (row.name == frame || row.frame == frame) row.visible = false;
      }
    }
    expectScreen(stage, "CTsklep", rows);
  }
}

Expectations preparationRows() {
  Expectations rows = labels("Monstat", {"5", "7", "20", "0"});
  add(rows, labels("Label2", {"Szybkość", "Średnie Obrażenia", "Wytrzymałość", "Pancerz"}));
  add(rows, labels("stat", {"12", "0", "20", "6", "1"}, "Statystyki"));
  add(rows, labels("label4", {"Wytrzymałość", "Pancerz", "Moc", "Szybkość", "Regeneracja", "Twoja Inicjatywa"},
                   "Statystyki"));
  add(rows, labels("cur", {"9", "20"}, "Statystyki"));
  rows.push_back(label("Inic", "6").in("Statystyki"));
  rows.push_back(label("tabak", "0").in("Statystyki").hidden());
  rows.push_back(label("Label1", "Przygotuj się przed walką !"));
  rows.push_back(label("Moname", "Komary"));
  rows.push_back(expected(Kind::picture, "Potwór"));
  rows.push_back(button("Heroshow", ""));
  rows.push_back(button("Zakoncz", "Zakończ"));
  rows.push_back(expected(Kind::comboBox, "Przedmioty").in("Frame2"));
  rows.push_back(button("Uzyj", "Użyj").in("Frame2"));
  rows.push_back(expected(Kind::comboBox, "Czary").in("Frame1"));
  rows.push_back(expected(Kind::textBox, "Koszt", "0").in("Frame1"));
  rows.push_back(label("KosztInfo", "").in("Frame1"));
  rows.push_back(label("Label3", "Możliwe do rzucenia czary:").in("Frame1"));
  rows.push_back(button("Rzuc", "Rzuć").in("Frame1"));
  rows.push_back(expected(Kind::notes, "historia").in("Frame3"));
  rows.push_back(expected(Kind::frame, "Frame1", "Czary"));
  rows.push_back(expected(Kind::frame, "Frame2", "Przedmioty"));
  rows.push_back(expected(Kind::frame, "Frame3", "Zapiski"));
  rows.push_back(expected(Kind::frame, "Statystyki", "Statystyki"));
  return rows;
}

TEST(Controls, PreparationShowsItsTable) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  EXPECT_EQ(title(stage, "Prefight"), "Przygotowanie przed walką!");
  expectScreen(stage, "Prefight", preparationRows());
  EXPECT_EQ(stage.rows("Prefight", "Czary"), (std::vector<std::string>{"Leczenie", "Autostart", "Czar Leczniczy"}));
  EXPECT_EQ(stage.rows("Prefight", "Przedmioty"),
            (std::vector<std::string>{"Zatruta Ryba", "Rabarbar de'Cur", "Tabaka", "Krzepiący Baton",
                                      "Lampa Sea Archiego", "Nieśmiertelność"}));
}

Expectations fightReports() {
  Expectations rows;
  rows.push_back(expected(Kind::frame, "FZad").hidden());
  rows.push_back(expected(Kind::picture, "Picture2").in("FZad").hidden());
  rows.push_back(label("Label4", "Zadałeś :").in("FZad").drawn(Ink::badge).hidden());
  rows.push_back(label("IleZad", "").in("FZad").hidden());
  rows.push_back(label("OpisZad", "").in("FZad").hidden());
  rows.push_back(button("CloseZad", "").in("FZad").hidden());
  rows.push_back(expected(Kind::frame, "FDamage", "DAMAGE!").hidden());
  rows.push_back(expected(Kind::picture, "Picture1").in("FDamage").hidden());
  rows.push_back(label("Label3", "Otrzymałeś :").in("FDamage").drawn(Ink::badge).hidden());
  rows.push_back(label("IleDMG", "").in("FDamage").hidden());
  rows.push_back(label("OpisDMG", "").in("FDamage").hidden());
  rows.push_back(button("CloseDMG", "").in("FDamage").hidden());
  rows.push_back(label("Uwaga", "").hidden());
  return rows;
}

Expectations fightRows() {
  Expectations rows = fightReports();
  add(rows, labels("Pstat", {"9", "0", "20", " 1k 4"}));
  add(rows, labels("Mstat", {"20", "0", "5", " 1k 4"}));
  add(rows, labels("Label2", {"Twoje statystyki:", "Wytrzymałość", "Pancerz", "Punkty Magii",
                              "DAMAGE :", "Statystyki Potwora:", "Wytrzymałość", "Pancerz", "Szybkość", "DAMAGE :"}));
  rows.push_back(button("Heroshow", ""));
  for (const char* name : {"Bron", "Czar", "Przedmiot"}) rows.push_back(expected(Kind::comboBox, name));
  rows.push_back(button("Atak", "Atakuj !"));
  rows.push_back(expected(Kind::textBox, "mana", "0").disabled());
  rows.push_back(button("Rzuc", "Rzuć"));
  rows.push_back(button("Uzyj", "Użyj"));
  rows.push_back(button("NastTura", "Następna Tura"));
  rows.push_back(expected(Kind::picture, "Potwór"));
  rows.push_back(label("LIle", "1").drawn(Ink::badge));
  rows.push_back(label("Odl", "BLISKA"));
  rows.push_back(label("Label1", "Odległość :"));
  return rows;
}

TEST(Controls, FightShowsItsTable) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  EXPECT_EQ(title(stage, "Fight"), "WALKA !");
  expectScreen(stage, "Fight", fightRows());
  EXPECT_EQ(stage.rows("Fight", "Bron"), (std::vector<std::string>{"Nóż", "Tasak", "Łuk", "Pistolet"}));
  EXPECT_EQ(stage.rows("Fight", "Czar"), (std::vector<std::string>{"Leczenie", "Damage!", "BullShots", "BOOM!",
                                                                   "Klasa III A", "Kaczy Fart", "Czar Leczniczy"}));
  EXPECT_EQ(stage.rows("Fight", "Przedmiot"), (std::vector<std::string>{"Granat", "Ammo"}));
}

TEST(Controls, SheetShowsItsTable) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"FHero"});
  Expectations rows = labels("pstatl", {"Wytrzymałość", "Pancerz", "Moc", "Szybkość", "Regeneracja", "Modyfikator O."});
  add(rows, labels("Pstat", {"12", "0", "20", "6", "1", " 1k 4"}));
  rows.push_back(label("Imie", "Kosiarz"));
  rows.push_back(label("klasa", "Strzelec"));
  rows.push_back(label("Label1", "Posiadane bronie :"));
  rows.push_back(label("Label2", "Pokonane Stwory:"));
  rows.push_back(expected(Kind::listBox, "Bron"));
  rows.push_back(expected(Kind::listBox, "Stwory"));
  rows.push_back(button("HeroClose", ""));
  EXPECT_EQ(title(stage, "FHero"), "Bohater");
  expectScreen(stage, "FHero", rows);
  EXPECT_EQ(stage.rows("FHero", "Bron"),
            (std::vector<std::string>{"Nóż (+0%)", "Tasak (+0%)", "Łuk (+0%)", "Pistolet (+0%)"}));
  EXPECT_EQ(stage.rows("FHero", "Stwory"), (std::vector<std::string>{"Szczur (3)"}));
}

}  // namespace
}  // namespace brolgan::test
