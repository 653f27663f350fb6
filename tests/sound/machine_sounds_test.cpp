// The real back-end: through SDL's own drivers that write into a file or play into nothing, without
// any device, and against a sound server that takes the call and never answers.
#include "desktop/sound/machine_sounds.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include "desktop/sound/variants.h"
#include "tests/sound/wave_file.h"

namespace brolgan::test {
namespace {

namespace fs = std::filesystem;
using desktop::MachineSounds;
using desktop::SoundBackend;

// Far beyond what any machine needs: only a defect takes so long.
constexpr std::chrono::seconds kNever{60};

bool becomesTrue(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + kNever;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

// By the library, not letter by letter: a driver writes faster than a test without the optimizer reads.
std::string bytesOf(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

// A folder with sound files, and a driver that writes what is to be heard into another one.
class Machine : public ::testing::Test {
 protected:
  Machine() {
    std::string name = fs::temp_directory_path() / "soundXXXXXX";
    folder = mkdtemp(name.data());
    setenv("SDL_DISKAUDIOFILE", heard().c_str(), 1);
    setenv("SDL_DISKAUDIODELAY", "1", 1);
    driver("disk");
  }
  ~Machine() override { fs::remove_all(folder); }

  static void driver(const char* name) { setenv("SDL_AUDIODRIVER", name, 1); }
  [[nodiscard]] fs::path heard() const { return folder / "heard.raw"; }
  // Writes a file of that content and gives its path.
  std::string file(const std::string& name, const std::string& content) const {
    std::ofstream(folder / name, std::ios::binary) << content;
    return folder / name;
  }
  // Whether just these samples come out of the device, alone and in one piece.
  [[nodiscard]] bool hears(const Samples& samples) const {
    return becomesTrue([&] { return bytesOf(heard()).find(bytes(samples)) != std::string::npos; });
  }

  fs::path folder;
};

using Disk = Machine;

TEST_F(Disk, EverySampleOfAFileArrives) {
  MachineSounds sounds;
  sounds.play("SFX", file("ramp.wav", waveFile(ramp())));
  EXPECT_TRUE(hears(ramp()));
  EXPECT_TRUE(sounds.close());
}

TEST_F(Disk, ABackslashSeparatesFolders) {
  fs::create_directory(folder / "guit");
  file("guit/ramp.wav", waveFile(ramp()));
  MachineSounds sounds;
  sounds.play("Music1", (folder / "guit\\ramp.wav").string());
  EXPECT_TRUE(hears(ramp()));
}

TEST_F(Disk, ANewSoundTakesThePlaceOfTheOneBefore) {
  MachineSounds sounds;
  sounds.play("SFX", file("long.wav", waveFile(steady(1000, 10000000))));
  EXPECT_TRUE(hears(steady(1000, 5000)));
  sounds.play("SFX", file("ramp.wav", waveFile(ramp())));
  EXPECT_TRUE(hears(ramp())) << "nothing of the sound before is mixed in";
}

TEST_F(Disk, TwoPlayersAreHeardTogether) {
  MachineSounds sounds;
  sounds.play("Music1", file("music.wav", waveFile(steady(1000, 10000000))));
  EXPECT_TRUE(hears(steady(1000, 5000)));
  sounds.play("SFX", file("effect.wav", waveFile(steady(300, 100000))));
  EXPECT_TRUE(hears(steady(1300, 5000)));
}

TEST_F(Disk, AStoppedPlayerIsSilentAndTheOtherGoesOn) {
  MachineSounds sounds;
  sounds.play("Music1", file("music.wav", waveFile(steady(1000, 10000000))));
  sounds.play("SFX", file("effect.wav", waveFile(steady(300, 10000000))));
  EXPECT_TRUE(hears(steady(1300, 5000)));
  sounds.stop("Music1");
  EXPECT_TRUE(hears(steady(300, 5000)));
  sounds.stop("SFX");
  EXPECT_TRUE(hears(steady(0, 50000)));
}

// One second of a level of one half, on one channel and at half the rate.
TEST_F(Disk, AFileOfAnotherFormIsConverted) {
  const auto backend = desktop::makeMachineBackend();
  ASSERT_TRUE(backend->open());
  backend->play("SFX", file("coarse.wav", waveFile(std::string(22050, '\xC0'), {1, 22050, 8})));
  EXPECT_TRUE(becomesTrue([&] { return !backend->busy(); }));
  backend->close();
  const Samples sound = withoutSilentEnds(samples(bytesOf(heard())));
  EXPECT_NEAR(static_cast<double>(sound.size()), 88200, 400);
  const auto [low, high] = std::minmax_element(sound.begin() + 400, sound.end() - 400);
  EXPECT_NEAR(*low, 0x4000, 200);
  EXPECT_NEAR(*high, 0x4000, 200);
}

// Each is followed by a good one, which must be heard.
class Broken : public Disk, public ::testing::WithParamInterface<std::string> {};

TEST_P(Broken, IsSilenceAndTheNextSoundIsHeard) {
  MachineSounds sounds;
  sounds.play("SFX", file("long.wav", waveFile(steady(1000, 10000000))));
  EXPECT_TRUE(hears(steady(1000, 5000)));
  sounds.play("SFX", file("broken.wav", GetParam()));
  sounds.play("Music1", file("ramp.wav", waveFile(ramp())));
  EXPECT_TRUE(hears(ramp())) << "the broken sound is silent, and so is the one that it replaced";
}

std::string cut(const std::string& content, std::size_t length) { return content.substr(0, length); }

INSTANTIATE_TEST_SUITE_P(File, Broken,
                         ::testing::Values("", "to nie jest dźwięk", cut(waveFile(ramp()), 20),
                                           cut(waveFile(ramp()), 44), std::string(100, '\0'),
                                           waveFile(ramp(), {2, 44100, 16, 0x55}), waveFile(ramp(), {2, 44100, 0}),
                                           waveFile(ramp(), {0, 44100, 16}), waveFile(ramp(), {2, 0, 16}),
                                           waveFile(Samples{})));

TEST_F(Disk, AMissingFileAndAFolderAreSilenceAndTheNextSoundIsHeard) {
  MachineSounds sounds;
  for (const fs::path& name : {folder / "missing.wav", folder, fs::path(), folder / "no" / "such.wav"}) {
    sounds.play("SFX", name);
    sounds.play("Music1", file("ramp.wav", waveFile(ramp())));
    EXPECT_TRUE(hears(ramp())) << name;
    fs::resize_file(heard(), 0);
  }
}

TEST_F(Disk, AFileThatPromisesMoreThanItHoldsDoesNoHarm) {
  const auto backend = desktop::makeMachineBackend();
  ASSERT_TRUE(backend->open());
  backend->play("SFX", file("short.wav", cut(waveFile(ramp()), 1000)));
  EXPECT_TRUE(becomesTrue([&] { return !backend->busy(); }));
  backend->play("SFX", file("ramp.wav", waveFile(ramp())));
  EXPECT_TRUE(hears(ramp()));
}

TEST_F(Machine, WithoutADeviceIsSilent) {
  driver("none-such");
  MachineSounds sounds;
  sounds.play("SFX", file("ramp.wav", waveFile(ramp())));
  sounds.stop("SFX");
  EXPECT_TRUE(sounds.close());
  EXPECT_FALSE(fs::exists(heard()));
}

TEST_F(Machine, FindsADeviceThatIsPluggedInLater) {
  const auto backend = desktop::makeMachineBackend();
  driver("none-such");
  EXPECT_FALSE(backend->open());
  driver("disk");
  EXPECT_TRUE(backend->open());
  backend->play("SFX", file("ramp.wav", waveFile(ramp())));
  EXPECT_TRUE(hears(ramp()));
}

TEST_F(Machine, WithoutASoundCardEndsAtOnce) {
  driver("alsa");
  setenv("ALSA_CONFIG_PATH", "/dev/null", 1);
  EXPECT_FALSE(desktop::makeMachineBackend()->open());
  MachineSounds sounds;
  sounds.play("SFX", file("ramp.wav", waveFile(ramp())));
  sounds.stop("SFX");
  EXPECT_TRUE(sounds.close());
}

TEST_F(Machine, KnowsWhenASoundIsOver) {
  driver("dummy");
  const auto backend = desktop::makeMachineBackend();
  ASSERT_TRUE(backend->open());
  EXPECT_FALSE(backend->busy());
  backend->play("SFX", file("long.wav", waveFile(steady(1000, 10000000))));
  EXPECT_TRUE(backend->busy());
  backend->stop("SFX");
  EXPECT_FALSE(backend->busy());
  backend->play("SFX", file("short.wav", waveFile(steady(1000, 3000))));
  EXPECT_TRUE(becomesTrue([&] { return !backend->busy(); }));
  backend->close();
  EXPECT_TRUE(backend->open()) << "the device can be taken again";
}

TEST_F(Machine, LeavesCtrlCToTheProgram) {
  driver("dummy");
  // A shell has what it starts in the background ignore Ctrl+C.
  for (const int number : {SIGINT, SIGTERM}) std::signal(number, SIG_DFL);
  const auto backend = desktop::makeMachineBackend();
  ASSERT_TRUE(backend->open());
  for (const int number : {SIGINT, SIGTERM}) {
    struct sigaction action {};
    sigaction(number, nullptr, &action);
    EXPECT_EQ(action.sa_handler, SIG_DFL) << number;
  }
}

// The next ones ask what a program has loaded and how it ends, so each is a program of its own.
class Program : public Machine {
 protected:
  Program() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

bool sdlIsLoaded() { return bytesOf("/proc/self/maps").find("libSDL2") != std::string::npos; }

TEST_F(Program, LoadsNothingBeforeItsFirstSound) {
  const auto run = [this] {
    MachineSounds sounds;
    sounds.stop("SFX");
    const bool early = sdlIsLoaded();
    sounds.play("SFX", file("ramp.wav", waveFile(ramp())));
    const bool later = hears(ramp()) && sdlIsLoaded();
    sounds.close();
    std::exit(early ? 1 : later ? 0 : 2);
  };
  EXPECT_EXIT(run(), ::testing::ExitedWithCode(0), "");
}

// A sound server that lets a program call and says nothing.
class MuteServer {
 public:
  explicit MuteServer(const fs::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.string().copy(address.sun_path, sizeof(address.sun_path) - 1);
    bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof(address));
    listen(socket_, 8);
  }
  MuteServer(const MuteServer&) = delete;
  MuteServer& operator=(const MuteServer&) = delete;
  ~MuteServer() { ::close(socket_); }

  // Waits for a call; answers whether one came.
  [[nodiscard]] bool isCalled() const {
    pollfd waiting{socket_, POLLIN, 0};
    return poll(&waiting, 1, static_cast<int>(std::chrono::milliseconds(kNever).count())) == 1 &&
           accept(socket_, nullptr, nullptr) >= 0;
  }

 private:
  int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

// The game goes on and ends while the worker still waits for the server: were any call to wait with
// it, the worker would be done by the end.
int playAgainstMuteServer(const fs::path& folder) {
  const MuteServer server(folder / "server");
  setenv("SDL_AUDIODRIVER", "pulseaudio", 1);
  setenv("PULSE_SERVER", ("unix:" + (folder / "server").string()).c_str(), 1);
  MachineSounds sounds;
  sounds.play("Music1", "guit\\hard2.wav");
  if (!server.isCalled()) return 1;
  for (int i = 0; i < 1000; ++i) {
    sounds.play("SFX", "czar.wav");
    sounds.stop("Music1");
  }
  return sounds.close() ? 2 : 0;
}

TEST_F(Program, IsNotHeldUpByAHungServerAndEndsInSpiteOfIt) {
  EXPECT_EXIT(std::quick_exit(playAgainstMuteServer(folder)), ::testing::ExitedWithCode(0), "");
}

#ifdef BROLGAN_SOUND_FILES

class Rendered : public Machine, public ::testing::WithParamInterface<std::string> {};

// SDL's way through floating numbers may change a sample by one step.
bool alike(const Samples& one, const Samples& other) {
  return one.size() == other.size() &&
         std::equal(one.begin(), one.end(), other.begin(), [](int a, int b) { return std::abs(a - b) <= 1; });
}

// Plays the sound so often that each of its variants had its turn, and the first one has it again.
TEST_P(Rendered, IsHeardWholeAndUnchangedInAllItsVariants) {
  setenv("SDL_DISKAUDIODELAY", "0", 1);
  const std::string first = fs::path(BROLGAN_SOUND_FILES) / GetParam();
  desktop::Variants variants;
  std::string path = variants.next(first);
  do {
    const auto backend = desktop::makeMachineBackend();
    ASSERT_TRUE(backend->open());
    backend->play("SFX", path);
    EXPECT_TRUE(backend->busy()) << path;
    EXPECT_TRUE(becomesTrue([&] { return !backend->busy(); }));
    backend->close();
    const Samples expected = withoutSilentEnds(samples(soundOf(bytesOf(path))));
    EXPECT_GT(expected.size(), 10000U) << path;
    EXPECT_TRUE(alike(withoutSilentEnds(samples(bytesOf(heard()))), expected)) << path;
    path = variants.next(first);
  } while (path != first);
}

INSTANTIATE_TEST_SUITE_P(Sound, Rendered,
                         ::testing::Values("guit/hard2.wav", "czar.wav", "czaramg.wav", "czarbul.wav", "czarboom.wav",
                                           "czar3a.wav", "czarkac.wav", "specammo.wav", "specgran.wav", "wygr.wav",
                                           "noz.wav", "kij.wav", "laska.wav", "magustaf.wav", "rozgacz.wav",
                                           "tasak.wav", "miecz.wav", "kordelas.wav", "rysik.wav", "oczozlop.wav",
                                           "luk.wav", "pistolet.wav", "strzelba.wav", "karabin.wav", "dzialo.wav",
                                           "marker.wav", "multi.wav", "intruz.wav", "reaper.wav", "ulti.wav"),
                         [](const auto& name) { return fs::path(name.param).stem().string(); });

#endif

}  // namespace
}  // namespace brolgan::test
