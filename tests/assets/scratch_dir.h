// A private working directory for tests that write data files, and capture of the loaders'
// messages on standard output and their diagnostic lines on standard error.
#pragma once
#include <cstdio>
#include <string>

#include "support/test_support.h"

class ScratchDir : public test::TempDirTest {
 protected:
  static void capture() {
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
  }
  // Standard output since capture(); standard error is kept for diagnostics().
  static std::string captured() {
    std::fflush(stdout);
    diagnostics_ = ::testing::internal::GetCapturedStderr();
    return ::testing::internal::GetCapturedStdout();
  }
  static const std::string& diagnostics() { return diagnostics_; }

 private:
  static inline std::string diagnostics_;
};
