// The one message box: what it says, what the program's exit says, and that nothing acts behind it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <functional>
#include <new>
#include <stdexcept>

#include "desktop/error_box.h"
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

// The line of the box that tells where a file was looked for.
std::string lineOfFolder(const QString& folder = QDir::currentPath()) { return "\nFolder: " + folder.toStdString(); }

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
  EXPECT_EQ(stage.errors, Names{"Błąd wykonania 53: Nie znaleziono pliku\nPlik: hero1.boh" + lineOfFolder()});
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

// Opens a preparation or a fight whose monster has that picture file, with the real reader of
// pictures, and lets its window be drawn.
std::string errorOfPicture(const QByteArray& bytes, const std::string& screen = "Prefight") {
  const QTemporaryDir folder;
  QFile file(folder.filePath("potwor.jpg"));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();
  Stage stage{Stage::RealPictures()};
  auto monsters = fiveMonsters();
  monsters[1].Obrazek = file.fileName().toStdString();
  if (screen == "Prefight") {
    setPreparation(stage.world, richHero());
    writeMonsters(stage.world, "monsters.cfg", monsters);
  } else {
    FightSetup fight = plainFight();
    fight.potwor = monsters[1];
    setFight(stage.world, richHero(), fight);
  }
  stage.open({screen});
  EXPECT_LE(stage.errors.size(), 1U);
  return stage.errors.empty() ? "" : stage.errors[0].substr(0, stage.errors[0].find('\n'));
}

constexpr const char* kNoPicture = "Błąd wykonania 481: Nieprawidłowy obrazek";

QByteArray bytesOf(const QString& name) {
  QFile file(name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

class PictureCut : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Formats, PictureCut, testing::Values("szczur.jpg", "cios.png"),
                         [](const auto& name) { return std::string(name.param).substr(0, 4); });

TEST_P(PictureCut, ShortAnywhereIsNone) {
  const QByteArray whole = bytesOf(GetParam());
  for (const qsizetype left : {qsizetype{8}, qsizetype{20}, qsizetype{200}, whole.size() / 10, whole.size() / 2,
                               whole.size() - 300, whole.size() - 1}) {
    EXPECT_EQ(errorOfPicture(whole.first(left)), kNoPicture) << left;
  }
  EXPECT_EQ(errorOfPicture(whole.first(whole.size() / 2), "Fight"), kNoPicture);
}

// A copy whose room was set aside before it was cut has its whole length.
TEST_P(PictureCut, ShortAndFilledUpWithZeroesIsNone) {
  const QByteArray whole = bytesOf(GetParam());
  EXPECT_EQ(errorOfPicture(whole.first(whole.size() / 2) + QByteArray(whole.size() / 2 + 1, '\0')), kNoPicture);
}

TEST_P(PictureCut, AfterItsEndIsOne) {
  EXPECT_EQ(errorOfPicture(bytesOf(GetParam())), "");
  EXPECT_EQ(errorOfPicture(bytesOf(GetParam()), "Fight"), "");
  EXPECT_EQ(errorOfPicture(bytesOf(GetParam()) + "i coś jeszcze"), "");
}

// All marks of a picture and no picture between them: only the decoder finds out, when it is drawn.
TEST(ErrorBox, TellsOfAPictureThatCannotBeDecoded) {
  QByteArray bytes = bytesOf("cios.png");
  const qsizetype data = bytes.indexOf("IDAT") + 4;
  for (qsizetype i = data; i < data + 1000; ++i) bytes[i] = 'x';
  EXPECT_EQ(errorOfPicture(bytes), kNoPicture);
}

TEST(ErrorBox, TellsOfAPictureOfAnotherFormatThatHasOnlyItsHeader) {
  QImage image("cios.png");
  QByteArray bytes;
  QBuffer buffer(&bytes);
  ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
  ASSERT_TRUE(image.save(&buffer, "BMP"));
  EXPECT_EQ(errorOfPicture(bytes), "");
  EXPECT_EQ(errorOfPicture(bytes.first(20)), kNoPicture);
}

TEST(ErrorBox, TellsOfAPictureThatIsNone) {
  EXPECT_EQ(errorOfPicture("to nie jest obraz"), "Błąd wykonania 481: Nieprawidłowy obrazek");
  EXPECT_EQ(errorOfPicture(""), "Błąd wykonania 481: Nieprawidłowy obrazek");
}

TEST(ErrorBox, TellsOfAMissingPicture) {
  Stage stage{Stage::RealPictures()};
  setPreparation(stage.world, richHero());
  auto monsters = fiveMonsters();
  monsters[1].Obrazek = "nigdzie.jpg";
  writeMonsters(stage.world, "monsters.cfg", monsters);
  stage.open({"Prefight"});
  EXPECT_EQ(stage.errors, Names{"Błąd wykonania 53: Nie znaleziono pliku\nPlik: nigdzie.jpg" + lineOfFolder()});
}

// What is wrong with the program itself.

using Thrown = std::pair<std::function<void()>, const char*>;

const std::vector<Thrown> kThrown = {
    {[] { throw std::bad_alloc(); }, "Błąd wewnętrzny: brak pamięci"},
    {[] { throw std::logic_error("no control Pstat(9)"); }, "Błąd wewnętrzny: no control Pstat(9)"},
    {[] { static_cast<void>(std::vector<int>(2).at(2)); }, nullptr},
    {[] { throw 7; }, "Błąd wewnętrzny: nieznany"},
};

void expectInternalError(const Stage& stage, const Thrown& thrown) {
  ASSERT_EQ(stage.errors.size(), 1U);
  if (thrown.second != nullptr) {
    EXPECT_EQ(stage.errors[0], thrown.second);
  }
  EXPECT_TRUE(stage.errors[0].starts_with("Błąd wewnętrzny: ")) << stage.errors[0];
  EXPECT_TRUE(stage.runtime.ended());
}

TEST(InternalError, OfAnEventIsToldAndEndsTheProgram) {
  for (const Thrown& thrown : kThrown) {
    Stage stage;
    openBullShots(stage, "2");
    std::get<CommandButton*>(stage.runtime.find("Fight")->controls().find("Rzuc").control)->Click = thrown.first;
    EXPECT_EQ(exitCodeOf([&] { stage.click("Fight", "Rzuc"); }), 1);
    expectInternalError(stage, thrown);
  }
}

TEST(InternalError, OfTheFirstScreenIsToldAndEndsTheProgram) {
  for (const Thrown& thrown : kThrown) {
    Stage stage;
    stage.runtime.offer("Starter", [&](Runtime&) -> std::unique_ptr<Form> {
      thrown.first();
      return nullptr;
    });
    EXPECT_EQ(exitCodeOf([&] { stage.start(); }), 1);
    expectInternalError(stage, thrown);
  }
}

// A window for which the face has no layout fails while it is made, in an event of its own.
TEST(InternalError, OfAWindowThatCannotBeMadeIsTold) {
  class Stranger : public Form {
   protected:
    void listControls(ControlTable&) override {}
  };
  Stage stage;
  stage.runtime.offer("Obcy", [](Runtime&) { return std::make_unique<Stranger>(); });
  EXPECT_EQ(exitCodeOf([&] { stage.open({"Main", "Obcy"}); }), 1);
  EXPECT_EQ(stage.errors, Names{"Błąd wewnętrzny: no layout for Obcy"});
}

// Throws whenever it is drawn.
class Unpaintable : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override { throw std::runtime_error("no brush"); }
};

TEST(InternalError, WhileAWindowIsDrawnIsToldOnceAndEndsTheProgram) {
  Stage stage;
  stage.start();
  Unpaintable widget;
  EXPECT_EQ(exitCodeOf([&] {
              widget.show();
              for (int i = 0; i < 3; ++i) widget.repaint();
            }),
            1);
  EXPECT_EQ(stage.errors, Names{"Błąd wewnętrzny: no brush"});
}

TEST(InternalError, OfATimerIsToldAndEndsTheProgram) {
  Stage stage;
  stage.start();
  EXPECT_EQ(exitCodeOf([] { throw std::runtime_error("too late"); }), 1);
  EXPECT_EQ(stage.errors, Names{"Błąd wewnętrzny: too late"});
}

TEST(ErrorBox, SaysWhereAFileWasLookedForWhenItTellsOfAPath) {
  const auto textOf = [](ErrorCode code, const std::string& file) {
    return desktop::errorText(std::make_exception_ptr(RuntimeError(code, {file, 0, {}}))).toStdString();
  };
  for (const ErrorCode code : {ErrorCode::fileNotFound, ErrorCode::deviceIo, ErrorCode::pathAccess,
                               ErrorCode::pathNotFound, ErrorCode::invalidPicture}) {
    EXPECT_TRUE(textOf(code, "gra.cfg").ends_with("\nPlik: gra.cfg" + lineOfFolder())) << textOf(code, "gra.cfg");
    EXPECT_TRUE(textOf(code, "guit\\hard2.wav").ends_with(lineOfFolder(QDir::currentPath() + "/guit")));
    EXPECT_TRUE(textOf(code, "/dev/zero").ends_with(lineOfFolder("/dev")));
    EXPECT_TRUE(textOf(code, "").ends_with(lineOfFolder()));
  }
  for (const ErrorCode code : {ErrorCode::overflow, ErrorCode::subscript, ErrorCode::typeMismatch, ErrorCode::pastEnd,
                               ErrorCode::noSuchControl}) {
    EXPECT_EQ(textOf(code, "gra.cfg").find("Folder"), std::string::npos);
  }
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
  EXPECT_EQ(reader.text.toStdString(), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: <b>hero</b>.boh" +
                                           lineOfFolder(QDir::currentPath() + "/<b>hero<"));
  EXPECT_TRUE(format == Qt::PlainText || !Qt::mightBeRichText(reader.text));
}

}  // namespace
}  // namespace brolgan::test
