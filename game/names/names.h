// What the game is known by to all that surrounds it: the names of its eight screens, of the pictures and
// sounds that it asks for by itself and of the verdicts by which a fight tells its end, and how many sit
// at it. What the data files name stands there. Names of text files stand with the rules that read and write them.
#pragma once

namespace brolgan {

// How many heroes the set-up has room for.
inline constexpr int kPlayers = 4;

namespace screens {
inline constexpr const char* kStart = "Starter";
inline constexpr const char* kTitle = "Brolgan";
inline constexpr const char* kSetUp = "Main";
inline constexpr const char* kCreation = "CTmhero";
inline constexpr const char* kShop = "CTsklep";
inline constexpr const char* kPreparation = "Prefight";
inline constexpr const char* kFight = "Fight";
inline constexpr const char* kSheet = "FHero";
}  // namespace screens

namespace pictures {
inline constexpr const char* kTitleByDay = "tytul.jpg";
inline constexpr const char* kTitleByNight = "tytul-noc.jpg";
inline constexpr const char* kCreationSword = "tworz-miecz.png";
inline constexpr const char* kCreationBook = "tworz-ksiega.png";
inline constexpr const char* kCreationMug = "tworz-kufel.png";
inline constexpr const char* kSignBoard = "szyld.png";
inline constexpr const char* kShutSpells = "stragan-czary.jpg";
inline constexpr const char* kShutWeapons = "stragan-bron.jpg";
inline constexpr const char* kShutStatistics = "stragan-cechy.jpg";
inline constexpr const char* kLantern = "lampa.png";
inline constexpr const char* kSheet = "arkusz.png";
inline constexpr const char* kClose = "zamknij.png";
inline constexpr const char* kPlaster = "zamknij-rana.png";
inline constexpr const char* kBlow = "cios.png";
inline constexpr const char* kWound = "rana.png";
}  // namespace pictures

namespace sounds {
inline constexpr const char* kMusic = "guit\\hard2.wav";
inline constexpr const char* kHealing = "czar.wav";
inline constexpr const char* kDamage = "czaramg.wav";
inline constexpr const char* kBullShots = "czarbul.wav";
inline constexpr const char* kBoom = "czarboom.wav";
inline constexpr const char* kClass3A = "czar3a.wav";
inline constexpr const char* kLuck = "czarkac.wav";
inline constexpr const char* kAmmo = "specammo.wav";
inline constexpr const char* kGrenade = "specgran.wav";
inline constexpr const char* kVictory = "wygr.wav";
}  // namespace sounds

namespace verdicts {
inline constexpr const char* kDeath = "Śmierć!";
inline constexpr const char* kGroupGone = "Czysto!";
// The number of the turn follows.
inline constexpr const char* kGameWon = "Wygrałeś - tura ";
}  // namespace verdicts

}  // namespace brolgan
