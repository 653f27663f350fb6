// The one message box: what it says, what the program's exit says, and that nothing acts behind it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <functional>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

using Names = std::vector<std::string>;

// Runs the program's event loop around doing and gives its exit code; -1 when it did not end.
int exitCodeOf(const std::function<void()>& doing) {
  QTimer guard;
  guard.setSingleShot(true);
  QObject::connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(-1); });
  guard.start(2000);
  QTimer::singleShot(0, doing);
  return QApplication::exec();
}

void openBullShots(Stage& stage, const std::string& mana) {
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  stage.choose("Fight", "Czar", "BullShots");
  stage.write("Fight", "mana", mana);
}

TEST(ErrorBox, NamesAMissingFile) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.world.files.contents.erase("hero1.boh");
  stage.open({"CTsklep"});
  EXPECT_EQ(stage.errors, Names{"Błąd wykonania 53: Nie znaleziono pliku\nPlik: hero1.boh"});
  EXPECT_EQ(stage.face.window("CTsklep"), nullptr);
}

TEST(ErrorBox, NamesTheLineOfAFileThatIsCutShort) {
  Stage stage;
  setShop(stage.world, richHero());
  Names lines = stage.world.lines("hero1.boh");
  lines.resize(112);
  stage.world.write("hero1.boh", lines);
  stage.open({"CTsklep"});
  ASSERT_EQ(stage.errors.size(), 1U);
  EXPECT_NE(stage.errors[0].find("Błąd wykonania 62: Odczyt poza końcem pliku\nPlik: hero1.boh"), std::string::npos)
      << stage.errors[0];
}

TEST(ErrorBox, TellsOfAWordInMana) {
  for (const std::string word : {"dwa", "", "2a"}) {
    Stage stage;
    openBullShots(stage, "0");
    stage.press("Fight", Qt::Key_Backspace);
    stage.typeKeys("Fight", word);
    stage.click("Fight", "Rzuc");
    ASSERT_EQ(stage.errors.size(), 1U) << word;
    EXPECT_EQ(stage.errors[0].substr(0, stage.errors[0].find('\n')), "Błąd wykonania 13: Niezgodność typów") << word;
  }
}

// Opens a preparation whose monster has that picture file, with the real reader of pictures.
std::string errorOfPicture(const QByteArray& bytes) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("potwor.jpg"));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();
  Stage stage{Stage::RealPictures()};
  setPreparation(stage.world, richHero());
  auto monsters = fiveMonsters();
  monsters[1].Obrazek = file.fileName().toStdString();
  writeMonsters(stage.world, "monsters.cfg", monsters);
  stage.open({"Prefight"});
  return stage.errors.empty() ? "" : stage.errors[0].substr(0, stage.errors[0].find('\n'));
}

TEST(ErrorBox, TellsOfAPictureThatIsNone) {
  EXPECT_EQ(errorOfPicture("to nie jest obraz"), "Błąd wykonania 481: Nieprawidłowy obrazek");
  EXPECT_EQ(errorOfPicture(""), "Błąd wykonania 481: Nieprawidłowy obrazek");
}

TEST(ErrorBox, LeavesARealPictureInPeace) {
  QFile file("szczur.jpg");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(errorOfPicture(file.readAll()), "");
}

TEST(ErrorBox, TellsOfAMissingPicture) {
  Stage stage{Stage::RealPictures()};
  setPreparation(stage.world, richHero());
  auto monsters = fiveMonsters();
  monsters[1].Obrazek = "nigdzie.jpg";
  writeMonsters(stage.world, "monsters.cfg", monsters);
  stage.open({"Prefight"});
  EXPECT_EQ(stage.errors, Names{"Błąd wykonania 53: Nie znaleziono pliku\nPlik: nigdzie.jpg"});
}

TEST(ErrorBox, EndsTheProgramWithAnErrorCode) {
  Stage stage;
  openBullShots(stage, "x");
  EXPECT_EQ(exitCodeOf([&] { stage.click("Fight", "Rzuc"); }), 1);
  EXPECT_TRUE(stage.runtime.ended());
}

TEST(ErrorBox, AGoodEndHasNoErrorCode) {
  Stage stage;
  stage.start();
  EXPECT_EQ(exitCodeOf([&] { stage.close("Brolgan"); }), 0);
  EXPECT_EQ(stage.errors, Names());
}

TEST(ErrorBox, NothingActsBehindIt) {
  Stage stage;
  openBullShots(stage, "x");
  stage.click("Fight", "Rzuc");
  ASSERT_EQ(stage.errors.size(), 1U);
  const auto files = stage.world.files.contents;
  const auto sounds = stage.world.sounds.events;
  for (const char* name : {"Atak", "Rzuc", "Uzyj", "NastTura", "Heroshow"}) stage.click("Fight", name);
  stage.choose("Fight", "Bron", "Nóż");
  stage.close("Fight");
  EXPECT_EQ(stage.errors.size(), 1U);
  EXPECT_EQ(stage.world.files.contents, files);
  EXPECT_EQ(stage.world.sounds.events, sounds);
  EXPECT_EQ(stage.text("Fight", "Pstat(3)"), " 1k 4");
  EXPECT_EQ(stage.face.window("FHero"), nullptr);
  EXPECT_EQ(stage.text("Fight", "Pstat(2)"), "20");
}

// Looks for the real box on the screen, reads it and presses its only button.
class BoxReader : public QObject {
 public:
  explicit BoxReader(std::function<void()> meanwhile) : meanwhile_(std::move(meanwhile)) {
    connect(&timer_, &QTimer::timeout, this, [this] { look(); });
    timer_.start(10);
  }

  QString title;
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  qsizetype buttons = 0;

 private:
  void look() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      auto* const box = qobject_cast<QMessageBox*>(widget);
      if (box != nullptr && box->isVisible()) read(*box);
    }
  }
  void read(QMessageBox& box) {
    timer_.stop();
    title = box.windowTitle();
    text = box.text();
    icon = box.icon();
    buttons = box.buttons().size();
    meanwhile_();
    QTest::mouseClick(box.buttons().front(), Qt::LeftButton);
  }

  QTimer timer_;
  std::function<void()> meanwhile_;
};

TEST(ErrorBox, StandsOnTheScreenAndGoesWithItsButton) {
  Stage stage;
  openBullShots(stage, "x");
  stage.face.onError = nullptr;
  const BoxReader reader([&stage] { stage.click("Fight", "NastTura"); });
  EXPECT_EQ(exitCodeOf([&] { stage.click("Fight", "Rzuc"); }), 1);
  EXPECT_EQ(reader.title.toStdString(), "Błąd");
  EXPECT_EQ(reader.text.left(reader.text.indexOf('\n')).toStdString(), "Błąd wykonania 13: Niezgodność typów");
  EXPECT_EQ(reader.icon, QMessageBox::Critical);
  EXPECT_EQ(reader.buttons, 1);
  EXPECT_FALSE(stage.isVisible("Fight", "FDamage"));
}

// The text stands as it is, whatever stands in the names of files.
TEST(ErrorBox, ShowsAFileNameToTheLetter) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.world.write("sklep.cfg", {"<b>hero</b>.boh", " 1 "});
  stage.face.onError = nullptr;
  Qt::TextFormat format = Qt::AutoText;
  const BoxReader reader([&format] {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      const auto* const box = qobject_cast<QMessageBox*>(widget);
      if (box != nullptr && box->isVisible()) format = box->textFormat();
    }
  });
  EXPECT_EQ(exitCodeOf([&] { stage.open({"CTsklep"}); }), 1);
  EXPECT_EQ(reader.text.toStdString(), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: <b>hero</b>.boh");
  EXPECT_TRUE(format == Qt::PlainText || !Qt::mightBeRichText(reader.text));
}

}  // namespace
}  // namespace brolgan::test
