// Shared by the loader tests: a private working directory with a GL context, and a way to
// run a loader whose failure ends the program, catching its exit status and its messages.
#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "platform/headless/headless_catch.h"
#include "platform/platform.h"
#include "support/test_support.h"

namespace harness {

// What a loader call did: the exit status it ended the program with (-1 when it returned),
// and what it printed on standard output and standard error (the debugger codes).
struct Outcome {
  int status;
  std::string out;
  std::string err;
};

template <typename F>
Outcome run(F call) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const int status = Headless_CatchExit(call);
  std::fflush(stdout);
  Outcome o{status, "", ""};
  o.out = testing::internal::GetCapturedStdout();
  o.err = testing::internal::GetCapturedStderr();
  return o;
}

// Each test runs in a fresh directory of its own, with the GL context current.
class LoaderTest : public test::TempDirTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(Plat_OpenWindow("t"), 1);
    TempDirTest::SetUp();
  }
};

}  // namespace harness
