// Shared by the unit tests: a private working directory and the headless GL context.
#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "shell/shell.h"

namespace test {

// Runs each test in a fresh temporary directory, removed afterwards.
class TempDirTest : public ::testing::Test {
 protected:
  void SetUp() override {
    char cwd[1024];
    ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
    old_dir_ = cwd;
    char templ[] = "/tmp/valdrune-test-XXXXXX";
    ASSERT_NE(mkdtemp(templ), nullptr);
    dir_ = templ;
    ASSERT_EQ(chdir(dir_.c_str()), 0);
  }
  void TearDown() override {
    ASSERT_EQ(chdir(old_dir_.c_str()), 0);
    std::string cmd = "rm -rf '" + dir_ + "'";
    ASSERT_EQ(std::system(cmd.c_str()), 0);
  }
  static void write_bytes(const char* name, const void* data, std::size_t size) {
    std::FILE* f = std::fopen(name, "wb");
    ASSERT_NE(f, nullptr);
    ASSERT_EQ(std::fwrite(data, 1, size, f), size);
    std::fclose(f);
  }
  static std::string read_all(const char* name) {
    std::string out;
    if (std::FILE* f = std::fopen(name, "rb")) {
      char buf[4096];
      std::size_t n;
      while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) out.append(buf, n);
      std::fclose(f);
    }
    return out;
  }
  std::string dir_;

 private:
  std::string old_dir_;
};

// Makes the off-screen GL context current with the game's fixed render state, as after
// start-up and the first reshape (once per process).
inline void ensure_gl() {
  static const int ok = [] {
    if (!Plat_OpenWindow("test")) return 0;
    Set_FixedGLState();
    Window_Reshape(HEADLESS_WIDTH, HEADLESS_HEIGHT);
    return 1;
  }();
  ASSERT_TRUE(ok);
}

}  // namespace test
