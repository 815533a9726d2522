// Every character's own moves and the opening, generated and read back through the game's
// own loaders after the shared frames.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "assetgen.h"
#include "assets/asset_anim.h"
#include "assets/asset_table.h"
#include "cpu/cpu_fixture.h"
#include "camera/camera_path.h"
#include "cpu/cpu.h"
#include "cpu/cpu_private.h"
#include "fight/fight.h"
#include "fight/fight_moves.h"
#include "fight/fight_state.h"
#include "figures/fig_figure.h"
#include "figures/fig_roster.h"
#include "input/input.h"
#include "moves/mv_roster.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "settings/settings.h"
#include "support/test_support.h"
#include "writers/writer_bsc.h"
#include "writers/writer_fa.h"
#include "writers/writer_tbl.h"

namespace {

namespace fs = std::filesystem;

bool is_special(int a) {
  return (a >= 190 && a <= 208) || (a >= 220 && a <= 238) || (a >= 266 && a <= 284) ||
         (a >= 299 && a <= 316) || (a >= 500 && a <= 519);
}
bool is_hold(int a) { return a >= 340 && a <= 479; }

// The actions a character enters through its own files: its command slots and chains, the
// holds of its moves, every held reaction, its stance-23 attacks and its victory poses.
std::set<int> own_actions(int c) {
  std::set<int> out = {241, 242, 12, 13};
  const int row = c == 14 ? 14 : c;
  for (int a : MoveTables.Special_Table[row])
    if (a != NO_MOVE) out.insert(a);
  for (const ChainLink& l : MoveTables.Chain_Table[row]) {
    if (l.running == NO_LINK) continue;
    if (is_special(l.next) || is_hold(l.next)) out.insert(l.next);
    if (is_special(l.running) || is_hold(l.running)) out.insert(l.running);
  }
  for (const HitGrab& g : HitGrab_Table)
    if ((g.characters & (1u << c)) && out.count(g.action)) out.insert(g.hold);
  for (const CommandThrow& t : CommandThrow_Table)
    if (t.character == c) out.insert(t.hold);
  for (int i = 0; i < mv::Mv_HoldPairCount(); ++i) out.insert(mv::Mv_HoldPair(i).held);
  return out;
}

bool armed(int part, int hit) { return part >= 2 && hit != 5 && hit != 17 && (hit < 38 || hit > 40); }

class OwnMoves : public test::TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    build_move_tables();
    gen::Context ctx{fs::current_path(), fs::current_path() / "work", {}};
    fs::create_directories(ctx.work);
    ASSERT_TRUE(gen::Generate_Moves(ctx));
    Write_Shared();
    for (int c = 0; c < fig::kCharacters; ++c) {
      fig::Skeleton s;
      fig::Fig_BuildSkeleton(c, s);
      std::vector<BscJoint> joints;
      for (int p = 2; p <= s.last_part; ++p) joints.push_back({s.joint[p][0], s.joint[p][1], s.joint[p][2]});
      ASSERT_TRUE(Write_BSC(fig::Fig_SkeletonFile(c), joints));
    }
  }
  // The generated shared files when the data set has them, else a small stand-in.
  void Write_Shared() {
    const fs::path data = VALDRUNE_DATA_DIR;
    std::error_code ec;
    real_shared_ = fs::exists(data / "PRELOAD.FA", ec) && fs::exists(data / "PRELOAD.TBL", ec);
    if (real_shared_) {
      fs::copy_file(data / "PRELOAD.FA", "PRELOAD.FA");
      fs::copy_file(data / "PRELOAD.TBL", "PRELOAD.TBL");
      return;
    }
    std::vector<FaKeyFrame> keys(40);
    ASSERT_TRUE(Write_FA("PRELOAD.FA", FaKind::PackedArmFree, 21, keys));
    TblFile shared;
    shared.frames.resize(3000);
    for (int a = 0; a < 600; ++a) shared.act[a] = {1, 30};
    ASSERT_TRUE(Write_TBL("PRELOAD.TBL", shared));
  }
  // Loads character c (or an opening side's files) as player 0.
  void Load(const char* anim, const char* skeleton, const char* table) {
    ASSERT_TRUE(Load_PreloadFA("PRELOAD.FA"));
    ASSERT_TRUE(Load_FA(anim, skeleton, 0));
    ASSERT_TRUE(Load_PreloadTBL("PRELOAD.TBL", 0));
    ASSERT_TRUE(Load_TBL(table, 0));
  }
  void Load_Character(int c) {
    std::string anim = fig::Fig_AnimFile(c);
    Load(anim.c_str(), fig::Fig_SkeletonFile(c), (anim.substr(0, anim.find('.')) + ".tbl").c_str());
  }
  // Loads character c as player 0 and builds its model; null when the model cannot be built.
  std::unique_ptr<fig::Model> Load_WithModel(int c) {
    Load_Character(c);
    auto model = std::make_unique<fig::Model>();
    fig::TextureLayout layout;
    if (!fig::Fig_BuildModel(c, *model, layout)) return nullptr;
    return model;
  }
  bool real_shared_ = false;
};

TEST_F(OwnMoves, EveryActionACharacterEntersHasItsOwnFramesWithinTheBudgets) {
  for (int c = 0; c < fig::kCharacters; ++c) {
    SCOPED_TRACE(c);
    Load_Character(c);
    const Fighter& f = fighters[0];
    const int S = f.last_shared_frame, K = f.last_shared_key;
    EXPECT_LE(Anim.char_keys[0], 2500);
    int last = S;
    for (int a : own_actions(c)) {
      ASSERT_GT(f.act_first[a], S) << "action " << a << " plays shared frames";
      ASSERT_LE(f.act_first[a], f.act_last[a]) << "action " << a;
      last = std::max(last, f.act_last[a]);
      for (int fr = f.act_first[a]; fr <= f.act_last[a]; ++fr)
        ASSERT_TRUE(f.frame_key[fr] > K && f.frame_key[fr] <= K + Anim.char_keys[0]) << a << " frame " << fr;
      if (f.act_win_last[a] != 0) {
        EXPECT_GE(f.act_win_first[a], f.act_first[a]) << a;
        EXPECT_LE(f.act_win_last[a], f.act_last[a]) << a;
      }
    }
    EXPECT_LE(last + 2, MAX_FRAMES);
    if (real_shared_) {  // the shared moves the fight, the tables and the computer start
      for (int a : {0, 1, 2, 3, 4, 7, 8, 9, 21, 22, 23, 24, 30, 31, 32, 35, 37, 40, 50, 51, 56, 57, 80, 81, 116,
                    117, 150, 170, 180, 181, 188, 189, 210, 211, 216, 217, 240, 250, 290, 331, 366, 436, 597, 598,
                    599})
        EXPECT_GE(f.act_first[a], 1) << "shared action " << a;
    }
  }
}

TEST_F(OwnMoves, AttacksStrikeProjectilesLaunchAndHoldsStayInStep) {
  std::vector<int> hold_length(1000, -1), held_length(1000, -1);
  for (int c = 0; c < fig::kCharacters; ++c) {
    SCOPED_TRACE(c);
    Load_Character(c);
    const Fighter& f = fighters[0];
    for (int a : own_actions(c)) {
      bool strikes = false, slams = false;  // a slam: the class-4 blow of a throw
      int projectile = 0;
      for (int fr = f.act_first[a]; fr <= f.act_last[a]; ++fr) {
        const bool slam = armed(f.frame_part[fr], f.frame_hit[fr]) && f.frame_hit[fr] / 100 == 4;
        slams = slams || slam;
        strikes = strikes || (armed(f.frame_part[fr], f.frame_hit[fr]) && !slam);
        int kind = f.frame_part[fr] >= 2 ? f.frame_hit[fr] % 100 : 0;
        if (kind == 24 || kind == 25 || kind == 42 || kind == 43) projectile = kind;
      }
      if (is_special(a) || a == 241 || a == 242) {
        EXPECT_TRUE(strikes || slams) << "action " << a << " never strikes";
      } else {
        EXPECT_FALSE(strikes) << "action " << a << " strikes";  // holds and victory poses
        EXPECT_EQ(slams, is_hold(a) && a < 410) << "action " << a;  // only a hold slams
      }
      EXPECT_EQ(projectile, mv::Mv_ProjectileKind(c, a)) << "action " << a;
      const int length = f.act_last[a] - f.act_first[a];
      std::vector<int>& seen = a >= 410 ? held_length : hold_length;
      if (is_hold(a)) {
        if (seen[a] < 0) seen[a] = length;
        EXPECT_EQ(seen[a], length) << "action " << a << " differs between characters";
      }
    }
  }
  const int projectile_moves[][3] = {{1, 190, 24}, {6, 190, 42}, {11, 190, 24}, {13, 194, 24}, {2, 201, 25}};
  for (const auto& p : projectile_moves) EXPECT_EQ(mv::Mv_ProjectileKind(p[0], p[1]), p[2]) << p[0];
  for (int i = 0; i < mv::Mv_HoldPairCount(); ++i) {
    const mv::HoldPair& p = mv::Mv_HoldPair(i);
    EXPECT_GE(hold_length[p.hold], 0) << p.hold << " is nobody's hold";
    EXPECT_EQ(hold_length[p.hold], held_length[p.held]) << p.hold << " and " << p.held;
  }
}

// A move another follows through a link shows the computer where it may press on (frames
// marked 1) while its link window is still open; one without them is never followed by the
// computer, however its link rows read.
TEST_F(OwnMoves, EveryMoveThatLinksOnOffersItsLinkFrames) {
  if (!real_shared_) GTEST_SKIP() << "needs the generated shared motions";
  for (int c = 0; c < fig::kCharacters; ++c) {
    SCOPED_TRACE(c);
    Load_Character(c);
    const Fighter& f = fighters[0];
    std::set<int> checked;
    for (const ChainLink& l : MoveTables.Chain_Table[c]) {
      if (l.running == NO_LINK || !checked.insert(l.running).second) continue;
      const int a = l.running;
      bool offered = false;
      for (int fr = f.act_first[a]; fr <= f.act_win_last[a] && fr <= f.act_last[a]; ++fr)
        offered = offered || f.frame_part[fr] == 1;
      EXPECT_TRUE(offered) << "action " << a << " (followed by " << l.next << ") has no link frames";
    }
  }
}

// Turns (rotation entries) are the same on every skeleton, so equal turn sequences mean the
// same move.
TEST_F(OwnMoves, NoTwoCharactersShareASpecialMove) {
  std::vector<std::vector<std::vector<std::int16_t>>> moves(fig::kCharacters);
  for (int c = 0; c < fig::kCharacters; ++c) {
    Load_Character(c);
    const Fighter& f = fighters[0];
    const int K = f.last_shared_key;
    for (int a : own_actions(c)) {
      if (!is_special(a)) continue;
      std::vector<std::int16_t> turns;
      for (int fr = f.act_first[a]; fr <= f.act_last[a]; ++fr)
        for (int e = 0; e < 9; ++e) turns.push_back(Anim.CharKeys[0][f.frame_key[fr] - K - 1][3 - 2][e]);
      moves[c].push_back(turns);
    }
  }
  for (int c = 0; c < fig::kCharacters; ++c)
    for (int d = c + 1; d < fig::kCharacters; ++d)
      for (const auto& m : moves[c])
        for (const auto& n : moves[d]) ASSERT_NE(m, n) << "characters " << c << " and " << d;
}

// Rotation entries of fighter 0's own key frame at `frame`, for parts first..last.
std::vector<int> Own_Turns(int frame, int first, int last) {
  const Fighter& f = fighters[0];
  std::vector<int> turns;
  for (int p = first; p <= last; ++p)
    for (int e = 0; e < 9; ++e) turns.push_back(Anim.CharKeys[0][f.frame_key[frame] - f.last_shared_key - 1][p - 2][e]);
  return turns;
}
int Apart(const std::vector<int>& a, const std::vector<int>& b) {
  int sum = 0;
  for (std::size_t i = 0; i < a.size(); ++i) sum += std::abs(a[i] - b[i]);
  return sum;
}

// The pose a fighter strikes in is its own: at the first striking frame of every special move,
// the head, trunk and arms of one character stand apart from every other character's.
TEST_F(OwnMoves, NoTwoCharactersStrikeFromTheSamePose) {
  std::vector<std::vector<std::vector<int>>> strikes(fig::kCharacters);
  for (int c = 0; c < fig::kCharacters; ++c) {
    Load_Character(c);
    const Fighter& f = fighters[0];
    for (int a : own_actions(c)) {
      if (!is_special(a)) continue;
      for (int fr = f.act_first[a]; fr <= f.act_last[a]; ++fr) {
        if (f.frame_part[fr] < 2 || f.frame_hit[fr] == 5) continue;
        strikes[c].push_back(Own_Turns(fr, 2, 13));  // head, trunk, both arms
        break;
      }
    }
  }
  for (int c = 0; c < fig::kCharacters; ++c)
    for (int d = c + 1; d < fig::kCharacters; ++d)
      for (const auto& m : strikes[c])
        for (const auto& n : strikes[d]) ASSERT_GT(Apart(m, n), 150) << "characters " << c << " and " << d;
}

// Each character waits in its own guard (its own frames, not the shared idle) and wins in two
// poses of its own: the guards, and the held last frames of victories 12 and 13, all differ.
TEST_F(OwnMoves, EveryCharacterHasItsOwnGuardAndVictoryPoses) {
  std::vector<std::vector<int>> guards, wins;
  for (int c = 0; c < fig::kCharacters; ++c) {
    Load_Character(c);
    const Fighter& f = fighters[0];
    for (int a : {0, 12, 13}) ASSERT_GT(f.frame_key[f.act_first[a]], f.last_shared_key) << "character " << c << " action " << a;
    guards.push_back(Own_Turns(f.act_first[0], 2, 16));
    wins.push_back(Own_Turns(f.act_last[12], 2, 16));
    wins.push_back(Own_Turns(f.act_last[13], 2, 16));
  }
  for (std::size_t i = 0; i < guards.size(); ++i)
    for (std::size_t j = i + 1; j < guards.size(); ++j) EXPECT_GT(Apart(guards[i], guards[j]), 100) << i << " " << j;
  for (std::size_t i = 0; i < wins.size(); ++i)
    for (std::size_t j = i + 1; j < wins.size(); ++j)
      EXPECT_GT(Apart(wins[i], wins[j]), 150) << "characters " << i / 2 << " and " << j / 2;
}

// The special moves the computer playing `character` starts from 10 units or more and from 13
// or more against a standing or crouching opponent, found by letting its routine choose over
// many frames, stances, gauges and lives: band[action] is 10 or 13.
std::vector<int> Computer_Far_Bands(int character) {
  std::vector<int> band(1000, 0);
  for (float sep : {10.2f, 11.0f, 12.0f, 12.9f, 13.2f, 14.0f, 15.0f, 15.9f}) {
    for (int stance : {0, 23})
      for (int crouch : {0, 1})
        for (int gauge : {50, 150})
          for (int fc = 0; fc < 6; ++fc)
            for (int extra = 0; extra < 12; ++extra) {
              test::Cpu_BareFighters(character, sep);
              frame_count = fc;
              fighters[1].stance = stance;
              fighters[1].gauge = gauge;
              fighters[1].life = 85 + extra;
              if (crouch) {
                fighters[0].crouching = 1;
                fighters[0].action = 30;
                fighters[0].frame = fighters[0].act_first[30] + 5;
              }
              Cpu.CpuReady[1] = Cpu.CpuLevel[1];
              CpuThink(1, character);
              const PlayerInput& in = Players[1];
              const int cmd = fighters[1].cmd_code;
              const int b = in.attack1_pressed ? 1 : in.attack2_pressed ? 2 : in.attack3_pressed ? 3 : in.attack4_pressed ? 4 : 0;
              if (cmd < 0 || cmd > 7 || b == 0) continue;
              const int slot = 4 * cmd + (b >= 3 ? 2 : 0) + (b % 2 == 1 ? 1 : 0);
              const int action = MoveTables.Special_Table[character][slot];
              if (action != NO_MOVE) band[action] = std::max(band[action], sep >= 13 ? 13 : 10);
            }
  }
  Match = MatchState{};
  Cpu = CpuState{};
  CpuMind = CpuMindState{};
  frame_count = 0;
  return band;
}

// Root-to-root distance at which fighter 0's strikes in `action` first touch a defender: the
// striking box's front under the game's own posing (frame offsets included), plus the
// defender's widened front.
float Own_Reach(const fig::Model& model, int action, bool* projectile) {
  Fighter& f = fighters[0];
  f.first_part = 2;
  f.last_part = 21;
  float front = -1e9f;
  *projectile = false;
  for (int fr = f.act_first[action]; fr <= f.act_last[action]; ++fr) {
    const int part = f.frame_part[fr], kind = f.frame_hit[fr] % 100;
    if (!armed(part, f.frame_hit[fr])) continue;
    *projectile = *projectile || kind == 24 || kind == 25 || kind == 42 || kind == 43;
    f.frame = fr;
    Pose_Fighter(0);
    for (const auto& c : model.boxes[part].corner) {
      float out[3];
      Mat_Apply(&Anim.Pose[0][part], c[0], c[1], c[2], &out[0], &out[1], &out[2]);
      front = std::max(front, out[2]);
    }
  }
  return front + 0.8f;
}

TEST_F(OwnMoves, AttacksReachTheDistancesTheComputerPlaysThemFrom) {
  for (int c = 0; c < fig::kCharacters; ++c) {
    SCOPED_TRACE(c);
    const std::vector<int> band = Computer_Far_Bands(c);
    const std::unique_ptr<fig::Model> model = Load_WithModel(c);
    ASSERT_TRUE(model);
    for (int a : own_actions(c)) {
      if (!is_special(a) && a != 241 && a != 242) continue;
      bool projectile = false;
      const float reach = Own_Reach(*model, a, &projectile);
      if (projectile) continue;  // the shot flies on
      EXPECT_GE(reach, std::max(5.0f, band[a] - 0.05f)) << "action " << a;
      EXPECT_LE(reach, 17.0f) << "action " << a;
    }
  }
}

// True when fighter 0's `action` strikes with a blow of `kind` on any of its frames.
bool Strikes_With(int action, int kind) {
  const Fighter& f = fighters[0];
  for (int fr = f.act_first[action]; fr <= f.act_last[action]; ++fr)
    if (f.frame_hit[fr] % 100 == kind && armed(f.frame_part[fr], f.frame_hit[fr])) return true;
  return false;
}

// A follow-up queued behind a rush (multi-hit blows, kind 35) starts once the rush's last
// straight has driven the opponent off, so it reaches that far.
TEST_F(OwnMoves, ARushsQueuedFollowUpReachesWhereTheRushDroveTheOpponent) {
  int checked = 0;
  for (int c = 0; c < fig::kCharacters; ++c) {
    SCOPED_TRACE(c);
    const std::unique_ptr<fig::Model> model = Load_WithModel(c);
    ASSERT_TRUE(model);
    for (const ChainLink& link : MoveTables.Chain_Table[c]) {
      if (link.running == NO_LINK) break;
      if (link.queued == 0 || link.running >= MAX_ACTIONS || !Strikes_With(link.running, 35)) continue;
      bool projectile = false;
      EXPECT_GE(Own_Reach(*model, link.next, &projectile), 15.4f) << link.running << " -> " << link.next;
      ++checked;
    }
  }
  EXPECT_GE(checked, 4);  // characters 0, 8 and the boss queue follow-ups behind their rushes
}

// The lowest point of fighter 0's mesh (hair, limbs, hands; props left out) on frame `fr`.
float Lowest(const fig::Model& model, int fr) {
  Fighter& f = fighters[0];
  f.first_part = 2;
  f.last_part = 21;
  f.frame = fr;
  Pose_Fighter(0);
  float low = 1e9f;
  for (int i = 1; i <= model.vertex_count; ++i) {
    const fig::Vertex& v = model.vertices[i];
    if (v.part < 2 || v.part > 18) continue;
    float out[3];
    Mat_Apply(&Anim.Pose[0][v.part], v.x, v.y, v.z, &out[0], &out[1], &out[2]);
    low = std::min(low, out[1]);
  }
  return low;
}

// Standing and lying are drawn with the same standing offset, so a fallen fighter of any build
// lies on the floor its soles stand on: not sunk into it, not floating above it.
TEST_F(OwnMoves, FallenFightersLieOnTheFloor) {
  if (!real_shared_) GTEST_SKIP() << "needs the generated shared motions";
  for (int c = 0; c < fig::kCharacters; ++c) {
    SCOPED_TRACE(c);
    const std::unique_ptr<fig::Model> model = Load_WithModel(c);
    ASSERT_TRUE(model);
    const Fighter& f = fighters[0];
    const float floor = Lowest(*model, f.act_first[0]);
    for (int a : {50, 51, 143, 144, 147, 148, 157, 158, 161, 162, 163, 164, 165, 166, 167, 171, 172, 173, 174, 175}) {
      const float low = Lowest(*model, f.act_last[a]);
      EXPECT_GT(low, floor - 0.1f) << "action " << a;
      EXPECT_LT(low, floor + 0.1f) << "action " << a;
    }
  }
}

TEST_F(OwnMoves, TheOpeningPlaysItsWholeScriptWithoutBlows) {
  for (int side = 0; side < 2; ++side) {
    SCOPED_TRACE(side);
    if (side == 0) Load("OPEN_BAN.FA", "BAN.BSC", "OPEN_BAN.TBL");
    else Load("OPEN_KNI.FX", "CROW.BSC", "OPEN_KNI.TBL");
    const Fighter& f = fighters[0];
    EXPECT_EQ(f.act_first[0], f.last_shared_frame + 2);
    const int length = f.act_last[0] - f.act_first[0] + 1;
    EXPECT_GE(length, 1250);
    EXPECT_LE(length, CAMERA_PATH_FRAMES);
    for (int fr = f.act_first[0]; fr <= f.act_last[0]; ++fr) ASSERT_LT(f.frame_part[fr], 2) << fr;
  }
  ASSERT_EQ(LoadCameraPath("OPEN_POS.CAM", 1, CAMERA_PATH_EYE), 1);
  ASSERT_EQ(LoadCameraPath("OPEN_POI.CAM", 1, CAMERA_PATH_LOOK_AT), 1);
  const CameraPathRecord& path = CameraPath[1];
  EXPECT_EQ(path.frame_count, fighters[0].act_last[0] - fighters[0].act_first[0] + 1);
  // The eye keeps its distance from the fighter it circles and never enters the body.
  for (int k = 0; k < path.frame_count; ++k) {
    float dx = path.x[k][1] - path.x[k][0], dz = path.z[k][1] - path.z[k][0];
    ASSERT_GT(dx * dx + dz * dz, 4.0f * 4.0f) << k;
  }
}

}  // namespace

// Where the striking part passes across the fighters' line over a strike's frames: the least
// sideways distance of its box from the line (0 when the box straddles it), signed by the side.
float Off_Line(const fig::Model& model, int action) {
  Fighter& f = fighters[0];
  f.first_part = 2;
  f.last_part = 21;
  float best = 1e9f;
  for (int fr = f.act_first[action]; fr <= f.act_last[action]; ++fr) {
    const int part = f.frame_part[fr], kind = f.frame_hit[fr] % 100;
    if (!armed(part, f.frame_hit[fr]) || kind == 24 || kind == 25 || kind == 42 || kind == 43) continue;
    if (f.frame_hit[fr] % 100 >= 28 && f.frame_hit[fr] % 100 <= 32) return 0;  // connects anywhere
    f.frame = fr;
    Pose_Fighter(0);
    float lo = 1e9f, hi = -1e9f;
    for (const auto& c : model.boxes[part].corner) {
      float out[3];
      Mat_Apply(&Anim.Pose[0][part], c[0], c[1], c[2], &out[0], &out[1], &out[2]);
      lo = std::min(lo, out[0]);
      hi = std::max(hi, out[0]);
    }
    const float off = lo > 0 ? lo : hi < 0 ? hi : 0.0f;
    if (std::abs(off) < std::abs(best)) best = off;
  }
  return best;
}

// A strike only lands when the striking part crosses the opponent's body, which stands on the
// line the fighters face each other along: a kick that swings wide of it never connects.
TEST_F(OwnMoves, StrikesCrossTheLineTheOpponentStandsOn) {
  if (!real_shared_) GTEST_SKIP() << "needs the generated shared motions";
  constexpr float kBodyHalfWidth = 1.0f;  // the defender's trunk and widened boxes, sideways
  for (int c = 0; c < fig::kCharacters; ++c) {
    SCOPED_TRACE(c);
    const std::unique_ptr<fig::Model> model = Load_WithModel(c);
    ASSERT_TRUE(model);
    for (int a = 0; a < 600; ++a) {
      if (fighters[0].act_first[a] < 1 || (a >= 340 && a <= 479)) continue;
      const float off = Off_Line(*model, a);
      if (off > 1e8f) continue;  // no strike
      EXPECT_LE(std::abs(off), kBodyHalfWidth) << "action " << a << " lands " << off << " off the line";
    }
  }
}
