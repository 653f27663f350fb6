// The store of the text files, on disk and in memory.
#include "flow/text/files.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "flow/text/item_reader.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

namespace fs = std::filesystem;

// Works in a temporary folder of its own.
class DiskFilesTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = fs::temp_directory_path() / "brolgan-XXXXXX";
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder = pattern;
    before = fs::current_path();
    fs::current_path(folder);
  }

  void TearDown() override {
    fs::current_path(before);
    fs::remove_all(folder);
  }

  static void put(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

  DiskFiles files;
  fs::path folder;
  fs::path before;
};

std::string allBytes() {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  return bytes + "\r\n\n\r\x1A";
}

TEST_F(DiskFilesTest, ReadsEveryByteAsItLies) {
  put("plik.txt", allBytes());
  EXPECT_EQ(files.read("plik.txt"), allBytes());
}

TEST_F(DiskFilesTest, AnEmptyFileIsEmpty) {
  put("plik.txt", "");
  EXPECT_EQ(files.read("plik.txt"), "");
}

TEST_F(DiskFilesTest, WritesEveryByteAsItIs) {
  files.create("plik.txt");
  files.append("plik.txt", allBytes());
  EXPECT_EQ(files.read("plik.txt"), allBytes());
}

TEST_F(DiskFilesTest, ANewFileIsForWhomTheMaskOfTheProcessLetsReadAndWriteIt) {
  const mode_t mask = umask(027);
  files.create("plik.txt");
  umask(mask);
  EXPECT_EQ(fs::status("plik.txt").permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(DiskFilesTest, AppendsBehindWhatIsThere) {
  files.create("plik.txt");
  files.append("plik.txt", "a");
  files.append("plik.txt", "b");
  EXPECT_EQ(files.read("plik.txt"), "ab");
}

TEST_F(DiskFilesTest, CreatingAFileEmptiesTheOneThatWasThere) {
  put("plik.txt", "stare");
  files.create("plik.txt");
  EXPECT_EQ(files.read("plik.txt"), "");
}

TEST_F(DiskFilesTest, ABackslashInANameSeparatesFolders) {
  fs::create_directories("guit/nuty");
  put("guit/hard2.wav", "dźwięk");
  EXPECT_EQ(files.read("guit\\hard2.wav"), "dźwięk");
  files.create("guit\\nuty\\plik.txt");
  files.append("guit\\nuty\\plik.txt", "a");
  EXPECT_EQ(files.read("guit/nuty/plik.txt"), "a");
}

TEST_F(DiskFilesTest, NamesMayHoldPolishLettersAndBlanks) {
  files.create("Żółta gęś.boh");
  files.append("Żółta gęś.boh", "a");
  EXPECT_TRUE(fs::exists("Żółta gęś.boh"));
  EXPECT_EQ(files.read("Żółta gęś.boh"), "a");
}

TEST_F(DiskFilesTest, AMissingFileIsNamedAsNotFound) {
  EXPECT_EQ(errorTextOf([this] { files.read("bron.cfg"); }), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: bron.cfg");
}

TEST_F(DiskFilesTest, ANameInAMissingFolderIsAPathNotFound) {
  EXPECT_EQ(errorTextOf([this] { files.read("guit\\hard2.wav"); }),
            "Błąd wykonania 76: Nie znaleziono ścieżki\nPlik: guit\\hard2.wav");
  EXPECT_EQ(errorTextOf([this] { files.create("guit\\hard2.wav"); }),
            "Błąd wykonania 76: Nie znaleziono ścieżki\nPlik: guit\\hard2.wav");
  EXPECT_FALSE(fs::exists("guit"));
}

TEST_F(DiskFilesTest, AFileInPlaceOfAFolderIsAPathNotFound) {
  put("guit", "");
  EXPECT_EQ(errorOf([this] { files.read("guit\\hard2.wav"); }), 76);
  EXPECT_EQ(errorOf([this] { files.create("guit\\hard2.wav"); }), 76);
}

TEST_F(DiskFilesTest, AFolderInPlaceOfAFileCannotBeReadOrWritten) {
  fs::create_directory("bron.cfg");
  EXPECT_EQ(errorTextOf([this] { files.read("bron.cfg"); }),
            "Błąd wykonania 75: Błąd dostępu do ścieżki lub pliku\nPlik: bron.cfg");
  EXPECT_EQ(errorOf([this] { files.create("bron.cfg"); }), 75);
  EXPECT_TRUE(fs::is_directory("bron.cfg"));
}

TEST_F(DiskFilesTest, AnEmptyNameCannotBeReadOrWrittenAndSaysThatItIsEmpty) {
  const std::string text = "Błąd wykonania 75: Błąd dostępu do ścieżki lub pliku\nPlik: (pusta nazwa)";
  EXPECT_EQ(errorTextOf([this] { files.read(""); }), text);
  EXPECT_EQ(errorTextOf([this] { files.create(""); }), text);
}

// A pipe with nobody at its other end would be waited for without end.
TEST_F(DiskFilesTest, APipeInPlaceOfAFileIsAnErrorAtOnce) {
  ASSERT_EQ(mkfifo("gra.cfg", 0600), 0);
  EXPECT_EQ(errorTextOf([this] { files.open("gra.cfg"); }),
            "Błąd wykonania 75: Błąd dostępu do ścieżki lub pliku\nPlik: gra.cfg");
  EXPECT_EQ(errorOf([this] { files.create("gra.cfg"); }), 75);
  EXPECT_EQ(errorOf([this] { files.append("gra.cfg", "a"); }), 57);
  fs::create_symlink("gra.cfg", "sklep.cfg");
  EXPECT_EQ(errorOf([this] { files.open("sklep.cfg"); }), 75);
  EXPECT_EQ(errorOf([this] { files.create("sklep.cfg"); }), 75);
}

TEST_F(DiskFilesTest, ADeviceInPlaceOfAFileIsAnErrorAtOnce) {
  for (const char* const device : {"/dev/zero", "/dev/null", "/dev/full"}) {
    EXPECT_EQ(errorOf([&] { files.open(device); }), 75) << device;
    EXPECT_EQ(errorOf([&] { files.create(device); }), 75) << device;
  }
}

// A file of the system that opens and whose first bytes can never be read stands for a dying disk.
TEST_F(DiskFilesTest, AReadThatFailsIsAnErrorOfTheDeviceAndNamesTheFile) {
  fs::create_symlink("/proc/self/mem", "hero1.boh");
  EXPECT_EQ(errorTextOf([this] { files.read("hero1.boh"); }),
            "Błąd wykonania 57: Błąd wejścia/wyjścia urządzenia\nPlik: hero1.boh");
}

constexpr off_t kHuge = 900'000'000;

TEST_F(DiskFilesTest, AHugeFileIsReadAsFarAsItIsAskedFor) {
  put("bron.cfg", "Kosiarz\r\n 12 \r\n");
  ASSERT_EQ(truncate("bron.cfg", kHuge), 0);
  OpenFile file = files.open("bron.cfg");
  ASSERT_TRUE(file.rest->appendTo(file.bytes));
  EXPECT_LE(file.bytes.size(), 64U * 1024);
  EXPECT_TRUE(file.bytes.starts_with("Kosiarz\r\n 12 \r\n"));
}

TEST_F(DiskFilesTest, TheFirstItemsOfAHugeFileCanBeRead) {
  put("bron.cfg", "Kosiarz\r\n 12 \r\n");
  ASSERT_EQ(truncate("bron.cfg", kHuge), 0);
  ItemReader in("bron.cfg", files.open("bron.cfg"));
  EXPECT_EQ(in.string("Imie"), "Kosiarz");
  EXPECT_EQ(in.integer("Ile_jeszcze"), 12);
}

TEST_F(DiskFilesTest, AFileOfManyLinesIsReadToItsEnd) {
  std::string lines;
  for (int i = 0; i < 5000; ++i) lines += " " + std::to_string(i) + " \r\n";
  put("plik.txt", lines);
  ItemReader in("plik.txt", files.open("plik.txt"));
  for (int i = 0; i < 5000; ++i) ASSERT_EQ(in.integer("liczba"), i);
  EXPECT_EQ(errorOf([&] { in.integer("liczba"); }), 62);
  EXPECT_EQ(in.line(), 5001);
}

TEST_F(DiskFilesTest, AFileThatCannotBeOpenedIsAnAccessError) {
  const int endpoint = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::strcpy(address.sun_path, "gniazdo");
  ASSERT_EQ(bind(endpoint, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(errorOf([this] { files.read("gniazdo"); }), 75);
  EXPECT_EQ(errorOf([this] { files.create("gniazdo"); }), 75);
  close(endpoint);
}

TEST_F(DiskFilesTest, AFileInAFolderThatTakesNoneCannotBeCreated) {
  EXPECT_EQ(errorOf([this] { files.create("/proc/brolgan.txt"); }), 75);
}

TEST_F(DiskFilesTest, AFullDeviceIsAnErrorOfInputAndOutput) {
  EXPECT_EQ(errorTextOf([this] { files.append("/dev/full", "a"); }),
            "Błąd wykonania 57: Błąd wejścia/wyjścia urządzenia\nPlik: /dev/full");
}

TEST_F(DiskFilesTest, AFileWhoseFolderWentAwayCannotBeAppendedTo) {
  fs::create_directory("guit");
  files.create("guit\\plik.txt");
  fs::remove_all("guit");
  EXPECT_EQ(errorOf([this] { files.append("guit\\plik.txt", "a"); }), 57);
}

TEST(MemoryFiles, KeepsWhatWasWritten) {
  MemoryFiles files;
  files.create("a.txt");
  files.append("a.txt", "1");
  files.append("a.txt", "2");
  EXPECT_EQ(files.read("a.txt"), "12");
  files.create("a.txt");
  EXPECT_EQ(files.read("a.txt"), "");
}

TEST(MemoryFiles, AMissingFileIsNamedAsNotFound) {
  MemoryFiles files;
  EXPECT_EQ(errorTextOf([&] { files.read("bron.cfg"); }), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: bron.cfg");
}

TEST(MemoryFiles, AnEmptyNameIsRefusedAsOnDisk) {
  MemoryFiles files;
  EXPECT_EQ(errorOf([&] { files.read(""); }), 75);
  EXPECT_EQ(errorOf([&] { files.create(""); }), 75);
}

}  // namespace
}  // namespace brolgan::test
