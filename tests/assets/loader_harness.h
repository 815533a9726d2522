// Shared by the loader tests: a private working directory with a GL context, and a way to
// run a loader whose failure ends the program, catching its exit status and its messages.
#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <csetjmp>
#include <string>

#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "support/test_support.h"

namespace harness {

inline std::jmp_buf ExitJump;
inline int ExitStatus = -1;

[[noreturn]] inline void on_exit(int status) {
  ExitStatus = status;
  std::longjmp(ExitJump, 1);
}

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
  Headless_SetExitHook(on_exit);
  ExitStatus = -1;
  if (setjmp(ExitJump) == 0) call();
  Headless_SetExitHook(nullptr);
  std::fflush(stdout);
  Outcome o{ExitStatus, "", ""};
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
