// Tests on a fight loaded from the generated data set (sim::load_fight): the working directory
// and the keys are given back afterwards.
#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "fight/fight_sim.h"

namespace sim {

class FightTest : public ::testing::Test {
 protected:
  // Loads characters c0 and c1; false (the test skips) without a data set.
  bool load(int c0, int c1) {
    char cwd[1024];
    if (getcwd(cwd, sizeof cwd) == nullptr) return false;
    old_dir_ = cwd;
    Headless_ResetInput();
    return load_fight(VALDRUNE_DATA_DIR, c0, c1);
  }
  void TearDown() override {
    Headless_ResetInput();
    if (!old_dir_.empty()) {
      ASSERT_EQ(chdir(old_dir_.c_str()), 0);
    }
  }
  std::string old_dir_;
};

}  // namespace sim
