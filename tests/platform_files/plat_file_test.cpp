// Data files: the reason a failed open gives, and files served from memory, which must never
// reach the directory while they are in use.
#include <gtest/gtest.h>

#include <cstring>

#include "platform/platform.h"
#include "support/test_support.h"

namespace {

const std::uint8_t kBytes[5] = {1, 2, 3, 4, 5};

bool serve(const char* name, const std::uint8_t** data, std::size_t* size) {
  if (std::strcmp(name, "MEM.BIN") == 0) {
    *data = kBytes;
    *size = sizeof kBytes;
    return true;
  }
  if (std::strcmp(name, "EMPTY.BIN") == 0) {
    *data = nullptr;
    *size = 0;
    return true;
  }
  return false;
}

class DataFiles : public test::TempDirTest {
 protected:
  void TearDown() override {
    Plat_SetFileSource(nullptr);
    TempDirTest::TearDown();
  }
};

TEST_F(DataFiles, AFailedOpenSaysMissingAndOtherwiseTheSystemsReason) {
  EXPECT_EQ(Plat_OpenFile("NONE.BIN", "rb"), nullptr);
  EXPECT_STREQ(Plat_OpenFailure(), "missing");
  EXPECT_EQ(Plat_OpenFile("no/such/dir.bin", "wb"), nullptr);  // writes use the name as given
  EXPECT_STREQ(Plat_OpenFailure(), "missing");
  write_bytes("plain.bin", kBytes, 2);
  std::FILE* f = Plat_OpenFile("PLAIN.BIN", "rb");  // found by its other spelling
  ASSERT_NE(f, nullptr);
  std::fclose(f);
}

TEST_F(DataFiles, WhileASourceIsSetEveryReadComesFromMemory) {
  write_bytes("DISK.BIN", kBytes, 3);
  Plat_SetFileSource(serve);
  std::FILE* f = Plat_OpenFile("MEM.BIN", "rb");
  ASSERT_NE(f, nullptr);
  std::uint8_t got[8] = {};
  EXPECT_EQ(std::fread(got, 1, sizeof got, f), 5u);
  EXPECT_EQ(std::memcmp(got, kBytes, 5), 0);
  std::fclose(f);
  f = Plat_OpenFile("EMPTY.BIN", "rb");
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(std::fread(got, 1, sizeof got, f), 0u);
  std::fclose(f);
  EXPECT_EQ(Plat_OpenFile("DISK.BIN", "rb"), nullptr) << "the directory is not looked at";
  EXPECT_STREQ(Plat_OpenFailure(), "missing");

  Plat_SetFileSource(nullptr);
  f = Plat_OpenFile("DISK.BIN", "rb");
  ASSERT_NE(f, nullptr);
  std::fclose(f);
}

}  // namespace
