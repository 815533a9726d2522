// The settings file: byte layout, sign extension, short and foreign files, atomic replace.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>

#include "fight/fight_state.h"
#include "input/input.h"
#include "settings/settings.h"
#include "support/test_support.h"

namespace {

constexpr std::uint8_t kDefaultFile[26] = {0x0D, 0x02, 0x70, 0x17, 0x02, 0x02, 0x00,
                                           0x01, 0x01, 0x41, 0x10, 0x00, 0x20, 0x00,
                                           0x40, 0x00, 0x80, 0x00, 0x10, 0x00, 0x20,
                                           0x00, 0x40, 0x00, 0x80, 0x00};

class SettingsFile : public test::TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    restore_defaults();
  }
  static void restore_defaults() {
    Settings = SettingsState{};
    Match.time_limit = 6000;
    Match.life_setting = 2;
    Match.rounds_to_win = 2;
    static constexpr std::int16_t kMasks[4] = {0x10, 0x20, 0x40, 0x80};
    for (auto& player : ButtonMask) std::memcpy(player, kMasks, sizeof kMasks);
    std::memset(SettingsRecord, 0, sizeof SettingsRecord);
  }
};

}  // namespace

TEST_F(SettingsFile, DefaultsSaveAsTheKnownBytesAndLoadBack) {
  Settings_Save();
  const std::string bytes = read_all("OPTION.CFG");
  ASSERT_EQ(bytes.size(), 26u);
  EXPECT_EQ(std::memcmp(bytes.data(), kDefaultFile, 26), 0);

  Settings.difficulty = 5;
  Match.time_limit = 9000;
  ButtonMask[1][3] = 0x10;
  Settings_Save();
  restore_defaults();
  Settings_Load();
  EXPECT_EQ(Settings.difficulty, 5);
  EXPECT_EQ(Match.time_limit, 9000);
  EXPECT_EQ(ButtonMask[1][3], 0x10);
  EXPECT_EQ(ButtonMask[0][3], 0x80);
}

TEST_F(SettingsFile, FieldsAreWidenedWithTheirSign) {
  std::uint8_t file[26];
  std::memcpy(file, kDefaultFile, 26);
  file[9] = 0xC8;   // frame rate
  file[2] = 0x18;   // time limit 0xFC18 = -1000
  file[3] = 0xFC;
  file[24] = 0x00;  // player 2 slot 4 mask 0x8000
  file[25] = 0x80;
  std::memcpy(SettingsRecord, file, 26);
  Settings_Decode();
  EXPECT_EQ(Settings.frame_rate, -56);
  EXPECT_EQ(Match.time_limit, -1000);
  EXPECT_EQ(ButtonMask[1][3], static_cast<std::int16_t>(0x8000));
}

TEST_F(SettingsFile, OutOfRangeValuesNeverReachTheGame) {
  std::uint8_t file[26];
  std::memcpy(file, kDefaultFile, 26);
  file[9] = 0xC8;  // frame rate -56: the pacer divides by it
  file[1] = 9;     // difficulty
  file[4] = 0;     // life
  file[12] = 0;    // player 1 slot 2 mask 0: would read as always held
  write_bytes("OPTION.CFG", file, 26);
  Settings_Load();
  EXPECT_EQ(Settings_FrameRate(), 65);
  EXPECT_EQ(Settings.difficulty, 5);
  EXPECT_EQ(Match.life_setting, 1);
  EXPECT_EQ(ButtonMask[0][1], 0x20);

  file[9] = 80;  // in range: taken as it stands
  write_bytes("OPTION.CFG", file, 26);
  Settings_Load();
  EXPECT_EQ(Settings_FrameRate(), 80);
}

TEST_F(SettingsFile, MissingOrForeignFilesLeaveTheDefaults) {
  testing::internal::CaptureStderr();
  Settings_Load();  // no file: the first run, nothing to say
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(Settings.frame_rate, 65);
  std::uint8_t file[26];
  std::memcpy(file, kDefaultFile, 26);
  file[0] = 12;  // another version
  file[1] = 4;
  write_bytes("OPTION.CFG", file, 26);
  testing::internal::CaptureStderr();
  Settings_Load();
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "valdrune: OPTION.CFG: not a settings file of version 13; the default settings stay\n");
  EXPECT_EQ(Settings.difficulty, 2);
}

TEST_F(SettingsFile, AnInterruptedSavesTemporaryFileGoesAtStartUp) {
  write_bytes("OPTION.CFG", kDefaultFile, 26);
  std::uint8_t half[9] = {0x0D, 0x05};
  write_bytes("OPTION.CFG.tmp", half, sizeof half);  // killed in the middle of a save
  testing::internal::CaptureStderr();
  Settings_Load();
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "valdrune: OPTION.CFG.tmp: left by an interrupted save; removed\n");
  EXPECT_NE(access("OPTION.CFG.tmp", F_OK), 0);
  EXPECT_EQ(Settings.difficulty, 2) << "the whole file is the one read";
  Settings_Load();  // nothing left to remove
  EXPECT_EQ(access("OPTION.CFG", F_OK), 0);
}

TEST_F(SettingsFile, ShortFileReplacesOnlyTheStartOfTheStagingRecord) {
  std::memcpy(SettingsRecord, kDefaultFile, 26);
  SettingsRecord[9] = 50;  // left from an earlier load
  const std::uint8_t head[3] = {0x0D, 0x04, 0x58};  // version, difficulty 4, low byte of time
  write_bytes("OPTION.CFG", head, sizeof head);
  Settings_Load();
  EXPECT_EQ(Settings.difficulty, 4);
  EXPECT_EQ(Match.time_limit, 6000);  // 0x1758 = 5976, brought up to the lowest limit
  EXPECT_EQ(Settings.frame_rate, 50);   // from the staging record's earlier contents
}

TEST_F(SettingsFile, SaveReplacesTheFileWholeOrNotAtAll) {
  write_bytes("OPTION.CFG", kDefaultFile, 26);
  Settings.difficulty = 3;
  Settings_Save();
  EXPECT_EQ(read_all("OPTION.CFG")[1], 3);
  EXPECT_NE(access("OPTION.CFG.tmp", F_OK), 0) << "no temporary file is left behind";

  // When the temporary file cannot be written the old file stays as it was.
  ASSERT_EQ(mkdir("OPTION.CFG.tmp", 0700), 0);
  Settings.difficulty = 5;
  Settings_Save();
  EXPECT_EQ(read_all("OPTION.CFG")[1], 3);
  EXPECT_EQ(read_all("OPTION.CFG").size(), 26u);
}
