// A private working directory for tests that write data files, and capture of the loaders'
// messages on standard output.
#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

class ScratchDir : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(getcwd(old_, sizeof old_), nullptr);
    char templ[] = "/tmp/valdrune-test-XXXXXX";
    ASSERT_NE(mkdtemp(templ), nullptr);
    dir_ = templ;
    ASSERT_EQ(chdir(dir_.c_str()), 0);
  }
  void TearDown() override {
    ASSERT_EQ(chdir(old_), 0);
    std::system(("rm -rf '" + dir_ + "'").c_str());
  }

  static void capture() { ::testing::internal::CaptureStdout(); }
  static std::string captured() {
    std::fflush(stdout);
    return ::testing::internal::GetCapturedStdout();
  }

 private:
  char old_[4096] = {};
  std::string dir_;
};
