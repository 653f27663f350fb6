// What a person is to see first on each screen: the shields, the class in hand, the zones, the points, the
// heads of the beaten, and the way on.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <set>
#include <string>
#include <tuple>

#include "desktop/emblem.h"
#include "desktop/theme.h"
#include "rules/development.h"
#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

namespace theme = desktop::theme;

QRect placeOf(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint()), widget.size()}; }

// The picture of that name in a window; null when there is none.
const desktop::PictureWidget* pictureOf(const desktop::FormWindow& window, const QString& name) {
  for (const auto* const label : window.findChildren<QLabel*>()) {
    const auto* const picture = dynamic_cast<const desktop::PictureWidget*>(label);
    if (picture != nullptr && picture->name() == name) return picture;
  }
  return nullptr;
}

// The share of points of that colour in a part of a picture.
qreal shareOf(const QImage& image, const QRect& part, const QColor& colour) {
  const QRect inside = part.intersected(image.rect());
  int found = 0;
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) found += image.pixelColor(x, y) == colour ? 1 : 0;
  }
  return static_cast<qreal>(found) / (inside.width() * inside.height());
}

TEST(Looks, AWallFillsWhatThePicturesOfTheTitleLeave) {
  Stage stage;
  stage.start();
  desktop::FormWindow& title = stage.window("Brolgan");
  for (const QSize size : {QSize(1200, 700), QSize(700, 1400), QSize(1300, 300)}) {
    title.resize(size);
    Stage::settle();
    const QImage shown = title.grab().scaled(size).toImage();
    const QRect corner = size.width() > 4 * size.height() ? QRect(0, 0, 80, 300) : QRect(0, 0, size.width(), 80);
    EXPECT_GT(shareOf(shown, corner, theme::kStone), 0.7) << size.width();
    EXPECT_LT(shareOf(shown, corner, theme::kInk), 0.25) << size.width();
    for (const char* const picture : {"pics(0)", "pics(1)"}) {
      EXPECT_TRUE(QRect(QPoint(), size).contains(placeOf(stage.at("Brolgan", picture)))) << size.width();
    }
  }
}

TEST(Looks, AMarginOfTheTitleThatHasNoRoomForStonesIsPlain) {
  Stage stage;
  stage.start();
  desktop::FormWindow& title = stage.window("Brolgan");
  const QImage shown = title.grab().scaled(title.size()).toImage();
  EXPECT_EQ(shareOf(shown, QRect(0, 0, shown.width(), 4), theme::kStone), 1);
  EXPECT_EQ(shareOf(shown, QRect(0, 0, 4, shown.height()), theme::kStone), 1);
}

// The colour of a point of a widget as it stands in its window.
QColor colourAt(QWidget& widget, QPoint place) {
  QWidget& window = *widget.window();
  return window.grab().toImage().pixelColor(
      (QPointF(widget.mapTo(&window, place)) * window.devicePixelRatioF()).toPoint());
}

// The face of a button beside its words.
QColor faceOf(QWidget& button) { return colourAt(button, {14, button.height() / 2}); }

TEST(Looks, TheStepToTakeIsLit) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  const auto face = [&](const char* name) { return faceOf(stage.at("Main", name)); };
  EXPECT_EQ(face("GraczM(0)"), theme::kPrimary);
  EXPECT_EQ(face("GraczM(1)"), theme::kButton);
  EXPECT_EQ(face("Start"), theme::kButton);
  EXPECT_TRUE(stage.isEnabled("Main", "Start"));
  stage.click("Main", "GraczM(0)");
  stage.click("CTmhero", "Save");
  EXPECT_EQ(face("GraczM(0)"), theme::kButton);
  EXPECT_EQ(face("Start"), theme::kPrimary);
}

TEST(Looks, WhatCanBeBoughtStandsOutFromWhatIsOwned) {
  Stage stage;
  Bohater hero = richHero();
  hero.MaCzar(6) = false;
  hero.MaCzar(3) = false;
  hero.Ile_jeszcze = 1;
  setShop(stage.world, hero);
  stage.open({"CTsklep"});
  const auto edge = [&](const char* name) { return colourAt(stage.at("CTsklep", name), {60, 1}); };
  stage.window("CTsklep").focusOn("w1");
  EXPECT_EQ(edge("Czarn(6)"), theme::kInk);
  EXPECT_NE(edge("Czarn(3)"), theme::kInk) << "too dear";
  EXPECT_NE(edge("Czarn(1)"), theme::kInk) << "owned";
  EXPECT_EQ(colourAt(stage.at("CTsklep", "Czarn(1)"), {100, 12}), theme::kPanel);
  EXPECT_EQ(colourAt(stage.at("CTsklep", "Czarn(3)"), {100, 12}), theme::kPlate);
  EXPECT_TRUE(stage.isRed("CTsklep", "Czarn(1)"));
  stage.click("CTsklep", "Czarn(6)");
  stage.window("CTsklep").focusOn("w1");
  EXPECT_NE(edge("Czarn(6)"), theme::kInk) << "bought";
}

TEST(Looks, TheStripesOfATableBeginBeforeItsWords) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  for (const auto& [first, last] : {std::pair("Label5(0)", "akt(0)"), std::pair("Czarn(0)", "Label13(0)")}) {
    QWidget& begin = stage.at("CTsklep", first);
    QWidget& end = stage.at("CTsklep", last);
    EXPECT_EQ(colourAt(begin, {-4, begin.height() / 2}), theme::kStripe) << first;
    EXPECT_EQ(colourAt(end, {end.width() + 3, end.height() / 2}), theme::kStripe) << last;
  }
}

TEST(Looks, TheTablesOfAColumnBeginAtOneEdge) {
  Stage stage;
  setShop(stage.world, richHero());
  setCreation(stage.world, 20);
  stage.open({"CTsklep", "CTmhero"});
  for (const char* const form : {"CTsklep", "CTmhero"}) {
    const auto left = [&](const char* name) { return placeOf(stage.at(form, name)).left(); };
    EXPECT_EQ(left("Label5(0)"), left("Label3")) << form;
    EXPECT_EQ(left("Label4(0)"), left("Label3")) << form;
    EXPECT_EQ(left("Czarn(0)"), left("Label17")) << form;
    EXPECT_EQ(left("Label10(0)"), left("Label4(2)")) << form;
  }
}

TEST(Looks, TheLegendStandsClearOfTheLastSpell) {
  Stage stage;
  setShop(stage.world, richHero());
  setCreation(stage.world, 20);
  stage.open({"CTsklep", "CTmhero"});
  for (const char* const form : {"CTsklep", "CTmhero"}) {
    EXPECT_GE(placeOf(stage.at(form, "Label10(0)")).top() - placeOf(stage.at(form, "Czarn(9)")).bottom(), 10) << form;
  }
}

TEST(Looks, TheSignsOfTheShopStandInTheMiddleOfTheirColumn) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  const QRect column = placeOf(stage.at("CTsklep", "Frame4"));
  const auto drawn = [&](const char* name, QSize shape) {
    const QRect place = placeOf(stage.at("CTsklep", name));
    QRect picture(QPoint(), shape.scaled(place.size(), Qt::KeepAspectRatio));
    picture.moveCenter(place.center());
    return picture;
  };
  const QRect shelf = drawn("pics(0)", {768, 240});
  const QRect lantern = drawn("pics(4)", {240, 240});
  EXPECT_NEAR(shelf.left() - column.left(), column.right() - lantern.right(), 8);
  EXPECT_GT(lantern.left() - shelf.right(), 20);
}

TEST(Looks, AShutStallKeepsClearOfThePanelsAroundIt) {
  Stage stage;
  setShop(stage.world, richHero(), 2);
  stage.open({"CTsklep"});
  const QRect stall = placeOf(stage.at("CTsklep", "pics(1)"));
  EXPECT_GE(placeOf(stage.at("CTsklep", "Frame4")).top() - stall.bottom(), 16);
  EXPECT_GE(stall.top(), placeOf(stage.at("CTsklep", "fstat")).top() + 8);
}

TEST(Looks, ThePointsEndWhereTheirColumnDoes) {
  Stage stage;
  setShop(stage.world, richHero());
  setCreation(stage.world, 20);
  stage.open({"CTsklep", "CTmhero"});
  for (const char* const form : {"CTsklep", "CTmhero"}) {
    QWidget& points = stage.at(form, "Ile_jeszcze");
    EXPECT_EQ(placeOf(points).right(), placeOf(stage.at(form, "Frame5")).right()) << form;
    EXPECT_EQ(colourAt(points, {points.width() - 2, points.height() / 2}), theme::kInk) << form;
  }
}

TEST(Looks, TheClassInHandHasAFrameAndIsBold) {
  Stage stage;
  setCreation(stage.world, 20);
  stage.open({"CTmhero"});
  stage.click("CTmhero", "Klasa(2)");
  stage.window("CTmhero").focusOn("Save");
  const auto edge = [&](int index) { return colourAt(stage.at("CTmhero", member("Klasa", index)), {30, 0}); };
  EXPECT_EQ(edge(2), theme::kInk);
  EXPECT_EQ(edge(3), theme::kPanel);
  const auto ink = [&](int index) {
    QWidget& option = stage.at("CTmhero", member("Klasa", index));
    const QImage shown = option.grab(QRect(30, 3, option.width() - 60, option.height() - 6)).toImage();
    return shareOf(shown, shown.rect(), theme::kInk);
  };
  const qreal bold = ink(2);
  stage.click("CTmhero", "Klasa(3)");
  stage.window("CTmhero").focusOn("Save");
  EXPECT_LT(ink(2), bold);
}

TEST(Looks, TheForgeStandsBesideItsHeadingAlone) {
  Stage stage;
  setCreation(stage.world, 20);
  stage.open({"CTmhero"});
  EXPECT_LT(placeOf(stage.at("CTmhero", "pics(0)")).bottom(), placeOf(stage.at("CTmhero", "Label7(1)")).top());
}

TEST(Looks, TheCountOfMonstersStandsClearOfTheFrameOfTheirPicture) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  const QRect picture = placeOf(stage.at("Fight", "Potwór"));
  const QRect count = placeOf(stage.at("Fight", "LIle"));
  EXPECT_GE(picture.right() - count.right(), 6);
  EXPECT_GE(picture.bottom() - count.bottom(), 6);
}

TEST(Looks, EveryPlayerHasAShieldAboveHisFile) {
  Stage stage;
  stage.start();
  const desktop::FormWindow& window = stage.window("Main");
  for (int i = 0; i < 4; ++i) {
    const auto* const shield = pictureOf(window, QString("tarcza-%1.png").arg(i + 1));
    ASSERT_NE(shield, nullptr) << i;
    const QRect file = placeOf(stage.at("Main", member("gracz", i)));
    EXPECT_LT(placeOf(*shield).bottom(), file.top());
    EXPECT_NEAR(placeOf(*shield).center().x(), file.center().x(), 2);
    const QPoint mark = placeOf(stage.at("Main", member("Czygra", i))).center();
    EXPECT_LT((mark - placeOf(*shield).center()).manhattanLength(), 4);
  }
}

TEST(Looks, TheEmblemIsThatOfTheClassInHand) {
  Stage stage;
  setCreation(stage.world, 20);
  stage.open({"CTmhero"});
  const desktop::FormWindow& window = stage.window("CTmhero");
  for (int i = kClasses; i > 0; --i) {
    stage.click("CTmhero", member("Klasa", i - 1));
    std::ignore = stage.window("CTmhero").grab();
    EXPECT_NE(pictureOf(window, QString("klasa-%1.png").arg(i)), nullptr) << i;
  }
  stage.click("CTmhero", "Klasa(6)");
  stage.open({"CTmhero"});
  std::ignore = stage.window("CTmhero").grab();
  int chosen = 0;
  while (!stage.get<QRadioButton>("CTmhero", member("Klasa", chosen)).isChecked()) ++chosen;
  EXPECT_NE(pictureOf(stage.window("CTmhero"), QString("klasa-%1.png").arg(chosen + 1)), nullptr) << "a fresh hero";
}

TEST(Looks, WordsThatWereRedAreAsLargeAsTheirNeighboursInAWindowThatGrew) {
  Stage stage;
  setCreation(stage.world, 20);
  stage.open({"CTmhero"});
  desktop::FormWindow& window = stage.window("CTmhero");
  const auto sizeOf = [&stage](const char* name) { return stage.at("CTmhero", name).font().pointSizeF(); };
  const qreal before = sizeOf("stat1(0)");
  ASSERT_EQ(sizeOf("stat1(1)"), before);
  stage.click("CTmhero", "PLUS(0)");
  window.resize(window.size() * 1.4);
  Stage::settle();
  EXPECT_GT(sizeOf("stat1(4)"), before * 1.2);
  for (const char* const name : {"stat1(0)", "stat1(1)"}) EXPECT_EQ(sizeOf(name), sizeOf("stat1(4)")) << name;
}

TEST(Looks, EachZoneHasATintAndAnEmblemOfItsOwn) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  std::set<QRgb> tints;
  std::vector<QImage> emblems;
  for (int i = 1; i <= 12; ++i) {
    QWidget& zone = stage.at("CTsklep", "w" + std::to_string(i));
    const auto found = zone.findChildren<desktop::Emblem*>();
    ASSERT_EQ(found.size(), 1) << i;
    const QImage emblem = found.front()->grab().toImage();
    for (const QImage& other : emblems) EXPECT_NE(emblem, other) << i;
    emblems.push_back(emblem);
    tints.insert(zone.grab().toImage().pixel(zone.width() - 40, zone.height() / 2));
    EXPECT_LT(found.front()->width(), zone.width() / 4);
  }
  EXPECT_EQ(tints.size(), 12U);
}

TEST(Looks, AClickOnTheEmblemOfAZoneGoesThere) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.world.roll(1, 5, {1});
  stage.open({"CTsklep"});
  QWidget& zone = stage.at("CTsklep", "w1");
  const auto* const emblem = zone.findChild<desktop::Emblem*>();
  ASSERT_NE(emblem, nullptr);
  const QPoint place = placeOf(*emblem).center();
  EXPECT_EQ(stage.window("CTsklep").childAt(place), &zone);
  QTest::mouseClick(stage.window("CTsklep").windowHandle(), Qt::LeftButton, {}, place);
  Stage::settle();
  EXPECT_TRUE(stage.isShown("Prefight"));
}

TEST(Looks, WhatIsSaidOfNoWeaponIsPale) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  const QColor pale = QApplication::palette().color(QPalette::PlaceholderText);
  for (const char* value : {"BWnazwa", "BWdmg", "BWcena", "BWopis"}) {
    EXPECT_EQ(stage.colour("CTsklep", value), pale) << value;
  }
  stage.choose("CTsklep", "LBronww", stage.rows("CTsklep", "LBronww").front());
  for (const char* value : {"BWdmg", "BWcena", "BWopis"})
    EXPECT_EQ(stage.colour("CTsklep", value), theme::kInk) << value;
  EXPECT_EQ(stage.colour("CTsklep", "BSdmg"), pale);
}

TEST(Looks, AWeaponBoughtBeforeAnyIsChosenIsRed) {
  Stage stage;
  Bohater hero = richHero();
  hero.MaBronww(0) = false;
  setShop(stage.world, hero);
  stage.open({"CTsklep"});
  stage.click("CTsklep", "Kupww");
  EXPECT_EQ(stage.colour("CTsklep", "BWnazwa"), QColor(255, 0, 0));
}

TEST(Looks, TheHeadOfAMonsterStandsBesideItsName) {
  Stage stage;
  Bohater hero = richHero();
  hero.Stwory(0) = 3;
  hero.Stwory(2) = 1;
  setShop(stage.world, hero);
  stage.open({"FHero"});
  auto& kills = stage.get<QListWidget>("FHero", "Stwory");
  ASSERT_EQ(kills.count(), 2);
  const qreal ratio = kills.devicePixelRatioF();
  const QImage shown = kills.viewport()->grab().toImage();
  for (const auto& [row, name] : {std::pair(0, "glowa-szczur.jpg"), std::pair(1, "glowa-zombi.jpg")}) {
    const QRect place = kills.visualItemRect(kills.item(row));
    const int side = qRound(stage.window("FHero").unit().pixels(24) * ratio);
    const QImage head = stage.pictures.pixmap(name, {side, side}).toImage().convertToFormat(shown.format());
    ASSERT_FALSE(head.isNull());
    bool isFound = false;
    for (int x = 0; x < 12 && !isFound; ++x) {
      for (int y = 0; y < 12 && !isFound; ++y) {
        const QPoint corner = (QPointF(place.topLeft()) * ratio).toPoint() + QPoint(x, y);
        isFound = shown.copy(QRect(corner, head.size())).convertToFormat(head.format()) == head;
      }
    }
    EXPECT_TRUE(isFound) << name;
  }
}

// Where the words of a row begin, in pixels of the window; -1 when it has none.
int wordsBegin(QListWidget& list, int row) {
  const QRect place = list.visualItemRect(list.item(row));
  const QImage shown = list.viewport()->grab(place).toImage();
  for (int x = 0; x < shown.width(); ++x) {
    for (int y = 0; y < shown.height(); ++y) {
      if (shown.pixelColor(x, y).lightness() < 80) return qRound(x / list.devicePixelRatioF());
    }
  }
  return -1;
}

TEST(Looks, AMonsterWithoutAHeadHasItsNameAlone) {
  Stage stage;
  Bohater hero = richHero();
  hero.Stwory(0) = 3;
  setShop(stage.world, hero);
  auto monsters = fiveMonsters();
  monsters[0].Obrazek = "nieznany.jpg";
  writeMonsters(stage.world, "monsters.cfg", monsters);
  stage.open({"FHero"});
  std::ignore = stage.window("FHero").grab();
  EXPECT_EQ(stage.rows("FHero", "Stwory"), std::vector<std::string>{"Szczur (3)"});
  const int words = wordsBegin(stage.get<QListWidget>("FHero", "Stwory"), 0);
  EXPECT_GE(words, 0);
  EXPECT_LT(words, stage.window("FHero").unit().pixels(12));
  EXPECT_TRUE(stage.errors.empty());
}

TEST(Looks, WhatIsUsedStandsInOneRowWithWhatIsCast) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  const auto place = [&](const char* name) { return placeOf(stage.at("Prefight", name)); };
  for (const char* const name : {"Uzyj", "Rzuc", "Czary"}) {
    EXPECT_EQ(place(name).top(), place("Przedmioty").top()) << name;
    EXPECT_EQ(place(name).bottom(), place("Przedmioty").bottom()) << name;
  }
}

TEST(Looks, AListOfTheFightIsAsWideAsItsButton) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  const auto place = [&](const char* name) { return placeOf(stage.at("Fight", name)); };
  for (const auto& [list, last, button] : {std::tuple("Bron", "Bron", "Atak"), std::tuple("Czar", "mana", "Rzuc"),
                                           std::tuple("Przedmiot", "Przedmiot", "Uzyj")}) {
    EXPECT_EQ(place(list).left(), place(button).left()) << list;
    EXPECT_EQ(place(last).right(), place(button).right()) << list;
  }
}

// From the end of the words of a label to the widget behind it, in units.
qreal gapBehind(const Stage& stage, const std::string& form, const std::string& name, const std::string& behind) {
  const auto& words = stage.get<QLabel>(form, name);
  const int end = placeOf(words).left() + words.fontMetrics().horizontalAdvance(words.text());
  return (placeOf(stage.at(form, behind)).left() - end) / stage.window(form).unit().value();
}

TEST(Looks, ANameStandsClearOfWhatFollowsIt) {
  Stage stage;
  setShop(stage.world, richHero());
  setCreation(stage.world, 20);
  stage.open({"CTsklep", "CTmhero"});
  for (const char* const form : {"CTsklep", "CTmhero"}) {
    EXPECT_GT(gapBehind(stage, form, "Label6(1)", "BWdmg"), 6) << form;
    EXPECT_GT(gapBehind(stage, form, "Label11(2)", "Label11(1)"), 10) << form;
    EXPECT_GT(gapBehind(stage, form, "ammo", form == std::string("CTsklep") ? "PLUS(8)" : "MINUS(8)"), 8) << form;
  }
  EXPECT_GT(gapBehind(stage, "CTmhero", "Label5(5)", "MINUS(5)"), 8);
}

// The first column of a widget in which something dark stands behind its edge.
int firstInk(QWidget& widget) {
  const QImage shown = widget.grab().toImage();
  const int edge = qRound(6 * widget.devicePixelRatioF());
  for (int x = edge; x < shown.width(); ++x) {
    for (int y = edge; y < shown.height() - edge; ++y) {
      if (shown.pixelColor(x, y).lightness() < 128) return x;
    }
  }
  return -1;
}

TEST(Looks, TheWordsOfAListBeginWhereThoseOfAFieldDo) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  auto& list = stage.get<QComboBox>("Prefight", "Czary");
  auto& field = stage.get<QLineEdit>("Prefight", "Koszt");
  list.addItem("Hydra");
  list.setCurrentIndex(list.count() - 1);
  field.setText("Hydra");
  field.clearFocus();
  ASSERT_GT(firstInk(field), 0);
  EXPECT_NEAR(firstInk(list), firstInk(field), 1);
}

TEST(Looks, TheRowsThatDropDownAreWhole) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  auto& list = stage.get<QComboBox>("Prefight", "Czary");
  list.addItem("Czar o nazwie, która jest o wiele dłuższa niż miejsce na nią w oknie gry przed walką");
  list.showPopup();
  QApplication::processEvents();
  const int need = QFontMetrics(list.view()->font()).horizontalAdvance(list.itemText(list.count() - 1));
  ASSERT_GT(need, list.width());
  EXPECT_GT(list.view()->viewport()->width(), need);
  list.hidePopup();
}

TEST(Looks, DeathLightsUpThePlaster) {
  Stage stage;
  FightSetup setup = plainFight();
  setup.PotworPierwszy = 1;
  setup.potwor.Atak = {1, 1, 1, 100};
  setFight(stage.world, plainHero(), setup);
  stage.world.roll(1, 1, {1});
  stage.open({"Fight"});
  QWidget& plaster = stage.at("Fight", "CloseDMG");
  const auto face = [&] { return plaster.grab().toImage().pixelColor(12, plaster.height() / 2); };
  ASSERT_EQ(stage.text("Fight", "OpisDMG"), "Śmierć!");
  ASSERT_EQ(stage.focus("Fight"), "CloseDMG");
  EXPECT_EQ(face(), theme::kPrimary);
  plaster.clearFocus();
  EXPECT_EQ(face(), theme::kPrimary);
  stage.at("Fight", "CloseZad").show();
  const QImage other = stage.at("Fight", "CloseZad").grab().toImage();
  EXPECT_EQ(other.pixelColor(12, other.height() / 2), theme::kButton);
}

}  // namespace
}  // namespace brolgan::test
