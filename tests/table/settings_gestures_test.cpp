#include "table/settings_gestures.h"

#include "fakes/fake_ports.h"
#include "table/help_files.h"

namespace holdem {
namespace {

class SettingsGesturesTest : public ProgramTest {
 protected:
  SettingsGesturesTest() { Put(kFlopHand); }

  using Writes = std::vector<std::string>;
};

TEST_F(SettingsGesturesTest, NumbersOfAwkwardTexts) {
  std::istringstream cases(
      "=777;0=0; 2=2;2 0=20;+2=2;-1=-1;1.5=2;2.5=2;.6=1;1,5=1;1e3=1000;1e=1;0x2=0;abc=0;2abc=2;"
      "inf=0;nan=0; =0;.=0;-=0;+=0;1.2.3=1;-- 1=0;+-2=0;32767=32767;32768=777;-32768=-32768;"
      "-32769=777;1e400=777");
  for (std::string text; std::getline(cases, text, ';');) {
    const auto equals = text.find('=');
    EXPECT_EQ(SettingNumber(text.substr(0, equals), 777), std::stoi(text.substr(equals + 1)))
        << text;
  }
}

TEST_F(SettingsGesturesTest, LoadingTakesWhateverIsStored) {
  const struct {
    const char* stored;
    int level, speed;
  } cases[] = {{"", 1, 0}, {"0", 0, 0}, {"2", 2, 2}, {"7", 7, 0}, {"-1", -1, 0}, {"3", 3, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.stored);
    settings = {};
    store.texts = {{"LevelPre", c.stored}, {"Speed", c.stored}};
    store.writes.clear();
    LoadLevels();
    EXPECT_TRUE(settings.LevelPre == c.level && settings.LevelPost == Avg);
    store.texts = {{"LevelPost", c.stored}, {"Speed", c.stored}};
    LoadLevels();
    EXPECT_TRUE(settings.LevelPre == Avg && settings.LevelPost == c.level);
    LoadSpeed();
    EXPECT_EQ(settings.Speed, c.speed);
    EXPECT_EQ(settings.DealsPerRun, 1500 * (1 + c.speed));
    EXPECT_EQ(store.writes, Writes{"Speed=" + std::to_string(c.speed)});  // always saved again
  }
}

TEST_F(SettingsGesturesTest, OnlyYesTurnsFoldDepthOn) {
  for (const std::string stored : {"", "No", "yes", "Yes"}) {
    const bool on = stored == "Yes";
    store.texts = {{"FoldLevels", stored}};
    EXPECT_EQ(ReactionTo(LoadFoldDepth), on ? Calculated : Nothing) << stored;
    EXPECT_EQ(seats.WatchFoldDepth, on) << stored;
    EXPECT_EQ(store.writes, on ? Writes{"FoldLevels=Yes"} : Writes());
  }
}

TEST_F(SettingsGesturesTest, ChoicesAreSavedOnceAndActAsTheyShould) {
  settings.Speed = 0;
  const struct {
    std::function<void()> gesture;
    Reaction reaction;
    Writes writes;
  } cases[] = {{[] { ChooseLevelPre(Loose); }, Redone, {"LevelPre=2"}},
               {[] { ChooseLevelPre(Loose); }, Nothing, {}},
               {[] { ChooseLevelPost(Tight); }, Calculated, {"LevelPost=0"}},
               {[] { ChooseLevelPost(Tight); }, Nothing, {}},
               {[] { ChooseSpeed(1); }, Nothing, {"Speed=1"}},
               {[] { ChooseSpeed(1); }, Nothing, {}},
               {[] { SetWatchFoldDepth(true); }, Calculated, {"FoldLevels=Yes"}},
               {[] { SetWatchFoldDepth(false); }, Calculated, {"FoldLevels=No"}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    store.writes.clear();
    display.shown["settings"] = 0;
    EXPECT_EQ(ReactionTo(c.gesture), c.reaction);
    EXPECT_EQ(store.writes, c.writes);
    EXPECT_EQ(display.shown["settings"] > 0, !c.writes.empty());
  }
  EXPECT_TRUE(settings.LevelPre == Loose && settings.LevelPost == Tight && settings.Speed == 1);
  EXPECT_TRUE(settings.DealsPerRun == 3000 && !seats.WatchFoldDepth);
}

TEST_F(SettingsGesturesTest, HelpFilesLieInTheProgramsOwnFolder) {
  for (const std::string folder : {"/opt/pellucor", "/opt/pellucor/", "/"}) {
    const std::string path = Path(folder + (folder.ends_with('/') ? "" : "/") + "readme.txt");
    shell = {};
    shell.folder = Path(folder);
    display.messages.clear();
    OpenHelpFile(kReadMe);
    EXPECT_EQ(display.messages, Writes{"Error opening file \"" + path + "\""});
    shell.existing = {path};
    OpenHelpFile(kReadMe);
    EXPECT_EQ(shell.opened, Writes{path});
  }
}

}  // namespace
}  // namespace holdem
