// The generator's plumbing: reading the waves external tools write, and the job runner's
// cache.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "assetgen.h"
#include "assetgen_dsp.h"

namespace {

namespace fs = std::filesystem;

class ScratchDir : public ::testing::Test {
 protected:
  void SetUp() override {
    char pattern[] = "/tmp/assetgen-test-XXXXXX";
    ASSERT_NE(mkdtemp(pattern), nullptr);
    dir_ = pattern;
    fs::create_directories(dir_ / "work");
  }
  void TearDown() override { fs::remove_all(dir_); }
  fs::path dir_;
};

std::string le16(int v) {
  return {static_cast<char>(v & 0xFF), static_cast<char>((v >> 8) & 0xFF)};
}
std::string le32(std::uint32_t v) { return le16(v & 0xFFFF) + le16(v >> 16); }

std::string wave(int channels, int rate, int bits, const std::string& samples, bool extra_chunk) {
  std::string fmt = le16(1) + le16(channels) + le32(rate) + le32(rate * channels * bits / 8) +
                    le16(channels * bits / 8) + le16(bits);
  std::string body = "WAVEfmt " + le32(16) + fmt;
  if (extra_chunk) body += "LIST" + le32(5) + std::string("abcde") + '\0';  // odd: padded
  body += "data" + le32(samples.size()) + samples;
  return "RIFF" + le32(body.size()) + body;
}

TEST_F(ScratchDir, WavesWithExtraChunksAndStereoReadAsMono) {
  const std::string stereo = le16(1000) + le16(3000) + le16(-2000) + le16(-2000);
  ASSERT_TRUE(gen::Write_File(dir_ / "a.wav", wave(2, 22050, 16, stereo, true)));
  gen::Buffer b;
  ASSERT_TRUE(gen::Read_Wave(dir_ / "a.wav", &b));
  ASSERT_EQ(b.size(), 2u);
  EXPECT_FLOAT_EQ(b[0], 2000.0f / 32768.0f);
  EXPECT_FLOAT_EQ(b[1], -2000.0f / 32768.0f);

  ASSERT_TRUE(gen::Write_File(dir_ / "b.wav", wave(1, 44100, 16, le16(5), false)));
  EXPECT_FALSE(gen::Read_Wave(dir_ / "b.wav", &b));  // another rate
  ASSERT_TRUE(gen::Write_File(dir_ / "c.wav", wave(1, 22050, 8, "ab", false)));
  EXPECT_FALSE(gen::Read_Wave(dir_ / "c.wav", &b));  // 8-bit
  ASSERT_TRUE(gen::Write_File(dir_ / "d.wav", "RIFX" + std::string(40, '\0')));
  EXPECT_FALSE(gen::Read_Wave(dir_ / "d.wav", &b));
}

TEST_F(ScratchDir, WrittenSoundsRoundTripAndTrimToTheirSound) {
  gen::Buffer b(gen::Samples(0.5f), 0.0f);
  for (int i = 0; i < gen::Samples(0.1f); ++i) b[gen::Samples(0.2f) + i] = i % 2 ? 0.5f : -0.5f;
  gen::Trim(b, 0.05f);
  EXPECT_NEAR(b.size(), gen::Samples(0.12f), 2);  // the burst and 10 ms either side
  gen::Normalize(b, 0.9f);
  ASSERT_TRUE(gen::Write_Sound(dir_ / "t.wav", b));
  gen::Buffer back;
  ASSERT_TRUE(gen::Read_Wave(dir_ / "t.wav", &back));
  ASSERT_EQ(back.size(), b.size());
  for (std::size_t i = 0; i < b.size(); ++i)
    EXPECT_NEAR(back[i], b[i], 2.0 / 32768) << i;  // one step of 16 bits
}

TEST_F(ScratchDir, JobsRunOnceAndThenComeFromTheCache) {
  gen::Context ctx{dir_ / "out", dir_ / "work", dir_ / "cache"};
  fs::create_directories(ctx.out);
  fs::create_directories(ctx.cache);
  const fs::path in = dir_ / "in.txt", log = dir_ / "runs.txt";
  ASSERT_TRUE(gen::Write_File(in, "first"));
  auto jobs = [&](int n) {
    std::vector<gen::Job> list;
    for (int i = 0; i < n; ++i) {
      const fs::path out = ctx.out / ("o" + std::to_string(i));
      list.push_back({"echo " + std::to_string(i) + " >> " + log.string() + " && cp " +
                          in.string() + " " + out.string(),
                      {in},
                      out});
    }
    return list;
  };
  ASSERT_TRUE(gen::Run_Jobs(ctx, jobs(3)));
  std::string runs, out;
  ASSERT_TRUE(gen::Read_File(log, &runs));
  EXPECT_EQ(runs.size(), 6u);  // three jobs ran
  fs::remove_all(ctx.out);
  ASSERT_TRUE(gen::Run_Jobs(ctx, jobs(3)));
  ASSERT_TRUE(gen::Read_File(log, &runs));
  EXPECT_EQ(runs.size(), 6u);  // none ran again
  ASSERT_TRUE(gen::Read_File(ctx.out / "o2", &out));
  EXPECT_EQ(out, "first");

  ASSERT_TRUE(gen::Write_File(in, "second"));  // a changed input runs again
  ASSERT_TRUE(gen::Run_Jobs(ctx, jobs(1)));
  ASSERT_TRUE(gen::Read_File(ctx.out / "o0", &out));
  EXPECT_EQ(out, "second");

  const std::vector<gen::Job> failing = {{"exit 3", {}, ctx.out / "never"}};
  testing::internal::CaptureStderr();
  EXPECT_FALSE(gen::Run_Jobs(ctx, failing));
  EXPECT_NE(testing::internal::GetCapturedStderr().find("exit 3"), std::string::npos);
}

}  // namespace
