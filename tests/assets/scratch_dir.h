// A private working directory for tests that write data files, and capture of the loaders'
// messages on standard output.
#pragma once
#include <cstdio>
#include <string>

#include "support/test_support.h"

class ScratchDir : public test::TempDirTest {
 protected:
  static void capture() { ::testing::internal::CaptureStdout(); }
  static std::string captured() {
    std::fflush(stdout);
    return ::testing::internal::GetCapturedStdout();
  }
};
