// A blow that connects: the guard decision, holds and counters, damage and its scaling, the
// bars and the combo, the reaction with its timing and sparks, hit-stop and the deciding blow.
#include <algorithm>
#include <cstdlib>

#include "audio/audio.h"
#include "cpu/cpu.h"
#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_moves.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "render/render_effect.h"
#include "settings/settings.h"

namespace {

constexpr int kGuardBreak = 50;   // a guarded blow this strong breaks the guard
constexpr int kCounterStance = 138;
constexpr int kCounterWindow = 11;
constexpr int kCounterMove = 366;
constexpr int kCountered = 436;
constexpr float kCloseHeights = 4.0f;  // a hold needs the fighters this close in height

// Actions in which each kind of defender stands ready to guard, by guard class.
constexpr int kHumanMid[] = {8, 35, 2, 26};
constexpr int kHumanHigh[] = {8, 2, 26};
constexpr int kHumanLow[] = {35};
constexpr int kCpuMid[] = {0, 22, 23, 24, 8, 2, 26, 31, 32, 35, 599};
constexpr int kCpuHigh[] = {0, 22, 23, 24, 8, 2, 26, 31, 599};
constexpr int kCpuLow[] = {32, 35, 34, 30, 599};

// Reactions after which the fighter is down and gets up again (busy until then).
constexpr int kDowningReactions[] = {143, 144, 147, 148, 157, 158, 161, 163,
                                     165, 166, 167, 170, 171, 172, 173, 174, 175};

// Miss chance of a computer guard by class: (3 - slope x difficulty + level) / divisor.
struct MissRule {
  std::int16_t slope, divisor;
};
constexpr MissRule kMiss[4] = {
    {0, 1},   // class 0: never guarded
    {20, 3},  // class 1
    {30, 4},  // class 2
    {70, 7},  // class 3
};

template <std::size_t N>
bool in_list(const int (&list)[N], int action) {
  for (const int a : list)
    if (a == action) return true;
  return false;
}

int angle_off(int a, int b) {
  const int d = std::abs(((a - b) % 360 + 360) % 360);
  return d > 180 ? 360 - d : d;
}

bool faces_away(const Fighter& f) { return angle_off(f.yaw, f.face_yaw) >= 121; }

// The key that points away from the opponent, held.
bool holds_back(int fighter) {
  const PlayerInput& in = Players[fighter];
  return fighter == Match.side_a ? in.left > 0 : in.right > 0;
}

bool airborne(int fighter) { return fighters[fighter].height > 0.0f; }

// The computer's guard slips: only for strong opponents that do not know the attack.
bool cpu_misses(int defender, int guard_class) {
  if (Cpu.CpuBaseLevel[defender] <= 50 || guard_class < 1 || guard_class > 3) return false;
  if (CpuKnowsMove(defender, fighters[opponent(defender)].action)) return false;
  const int d = std::min(Settings.difficulty, 3);
  const MissRule& rule = kMiss[guard_class];
  const int chance = (3 - rule.slope * d + Cpu.CpuLevel[defender]) / rule.divisor;
  return chance > frame_count % 100;
}

// Whether the defender guards a blow of this class.
bool guards(int defender, int guard_class) {
  const Fighter& d = fighters[defender];
  if (faces_away(d)) return false;  // a blow from behind is never guarded
  const bool rising_back = d.rising && holds_back(defender);
  if (Match.human[defender]) {
    if (guard_class == 1) return in_list(kHumanMid, d.action) || rising_back;
    if (guard_class == 2) return in_list(kHumanHigh, d.action) || rising_back;
    if (guard_class == 3) return in_list(kHumanLow, d.action) || (rising_back && Players[defender].down > 0);
    return false;
  }
  if (d.busy) return false;
  bool ready = false;
  if (guard_class == 1) ready = in_list(kCpuMid, d.action) || rising_back;
  if (guard_class == 2) ready = in_list(kCpuHigh, d.action) || rising_back;
  if (guard_class == 3) ready = in_list(kCpuLow, d.action);
  return ready && !cpu_misses(defender, guard_class);
}

// The computer learns from a blow that lands: what hit it, what it was doing, and (when it
// plays the side) how quickly to answer.
void cpu_learns(int attacker, int defender, int damage) {
  CpuRememberHit(defender, fighters[attacker].action);
  CpuRememberInterrupted(defender);
  if (!Match.human[defender]) CpuAdjustLevel(defender, damage, attacker);
}

void enter_guard(int defender, int action) {
  Fighter& d = fighters[defender];
  if (d.action != action) {
    d.action = action;
    d.frame = d.act_first[action];
  }
  d.guarding = 1;
  d.crouching = action == 35 ? 1 : 0;
}

// The reaction of an unguarded blow, before the heavy-blow rules.
int plain_reaction(const Fighter& a, const Fighter& d, int guard_class, int damage) {
  const int kind = a.hit_kind;
  switch (guard_class) {
    case 0:
      return d.crouching ? 159 : 150;
    case 2:
      if (kind == 33) return 144;
      return d.reacting ? 150 : 152;
    case 3:
      if (damage >= 8) return 148;
      if (kind == 9) return 152;
      return d.crouching ? 159 : 153;
    case 6:
      return 521;
    default:
      break;
  }
  if (d.crouching && !a.super_mode) return 159;
  if (kind == 21 || kind == 26) return 145;
  if (kind == 22 || kind == 27) return 146;
  if (kind == 23) return 147;
  if (kind == 34) return 143;
  if (kind == 37) return 149;
  return 150;
}

// Heavy blows on a defender that stands facing the attacker.
int heavy_reaction(int defender, int guard_class, int damage, float launch, int plain) {
  const Fighter& d = fighters[defender];
  const bool up = airborne(defender) || launch >= 2.0f;
  const bool alive = d.life > d.damage;
  if (!alive) return up ? (launch <= 2.0f ? 157 : 167) : plain;
  if (faces_away(d) || d.turning) return up ? 158 : plain;
  if (damage >= 16 && (guard_class == 1 || guard_class == 2)) return d.action == 144 ? plain : 172;
  if (damage >= 10 && guard_class == 3) return 173;
  if (up) return launch <= 2.0f ? 171 : 167;
  if (damage < 10) return plain;
  if (d.action == 144) return plain;
  return guard_class == 2 ? 171 : 166;
}

// The side of the display a banner stands on: 1 for fighter 0's, 2 for fighter 1's.
std::int32_t banner_side(int fighter) { return fighter + 1; }

// A reversal (a counter, or a blow that catches the opponent's strike) is announced unless
// one is already showing.
void announce_reversal(int fighter) {
  if (Match.reversal != 0) return;
  Match.reversal = banner_side(fighter);
  Match.reversal_frame = 0;
}

// A special move that turns into a hold; true when it took hold.
bool try_hit_grab(int attacker, int defender) {
  Fighter& a = fighters[attacker];
  Fighter& d = fighters[defender];
  int hold = 0, held = 0, any_height = 0;
  if (!find_hit_grab(Match.character[attacker], a.action, &hold, &held, &any_height)) return false;
  if (d.action == 597 || d.action == 598 || d.air_hold) return false;
  if (!any_height && !d.busy && std::abs(a.height - d.height) >= kCloseHeights) {
    a.hit_power = 10;
    a.super_mode = 0;
    return false;
  }
  start_action(attacker, hold, 1);
  d.action = held;
  d.frame = d.act_first[held];
  a.busy = a.reacting = 1;
  d.busy = d.reacting = 1;
  a.height = d.height = 0.0f;
  stop_launch(defender);
  const int shout = CharacterVoices[Match.character[defender] & 15].hurt;
  if (shout >= 0) Queue_Sound(2 * defender + 1, shout);
  return true;
}

// The counter stance answers a body blow in its first frames.
bool try_counter(int attacker, int defender, int by_projectile) {
  Fighter& a = fighters[attacker];
  Fighter& d = fighters[defender];
  if (by_projectile || d.action != kCounterStance) return false;
  if (d.frame - d.act_first[kCounterStance] >= kCounterWindow) return false;
  if (a.super_mode || a.reacting || a.frame_part[a.frame] > 16) return false;
  start_action(defender, kCounterMove, 1);
  set_reaction(attacker, kCountered);
  announce_reversal(defender);
  return true;
}

// Damage of an unguarded blow after counters and scaling.
int scaled_damage(int attacker, int defender, int damage) {
  Fighter& a = fighters[attacker];
  Fighter& d = fighters[defender];
  if (d.hit_new == 1 && !a.super_mode) {  // caught with its own strike out
    damage += d.hit_power / 3;
    d.hit_new = 0;
    announce_reversal(attacker);
  }
  if (a.super_mode) {
    if (a.action == 331) return damage / 2;
    return damage >= 3 ? damage * 3 / 4 : damage;
  }
  if (a.combo >= 6) return damage / 2;
  if (a.combo >= 3) return damage * 2 / 3;
  return damage;
}

void count_combo(Fighter& a) {
  ++a.combo;
  if (a.combo_show < 21)
    a.combo_show = 30;
  else if (a.combo_show < 25)
    a.combo_show = 25;
}

void hit_sparks(int attacker, int guard_class, int damage) {
  const Fighter& a = fighters[attacker];
  const float* c = Hits.contact;
  if (a.hit_class == 0)
    Spawn_HitEffect(attacker, c[0], c[1], c[2], frame_count % 3 == 0 ? 11 : 2, 0);
  if ((damage >= 10 && guard_class != 3) || a.hit_kind == 4)
    Spawn_Sparks(attacker, c[0], c[1], c[2]);
}

// The blow that empties the defender's life ends the round.
// A fighter beaten while thrown or held plays its motion out and stays down where it lands.
void deciding_blow(int attacker, int defender, int damage, int reaction, bool held) {
  Fighter& a = fighters[attacker];
  Fighter& d = fighters[defender];
  Match.hit_stop = 30;
  const int down = CharacterVoices[Match.character[defender] & 15].down;
  if (down >= 0) Queue_Sound(2 * defender + 1, down);
  if (!held && reaction != 157 && reaction != 158 && reaction != 167) {
    d.action = 170;
    d.frame = d.act_first[170];
  }
  d.busy = d.reacting = 1;
  // A throw or special move with its own camera work ends on a close-up: of the winner or
  // of the beaten fighter, as the frame falls.
  if (a.in_special && a.special_shot != 0) Match.ko_closeup = frame_count % 2 + 1;
  Play_Sound(a.perfect ? SND_PERFECT : SND_KO);
  if (a.super_mode) {
    if (damage < 10) a.super_finish = 1;
    else a.super_fx = 0;
    a.super_mode = 0;
  }
}

int blow_action(int attacker, int by_projectile) {
  return by_projectile ? Hits.projectile_action[attacker] : fighters[attacker].action;
}

// Counts a blow that landed for the review tools.
void note_landed(int attacker, int by_projectile) {
  ++Hits.landed[attacker];
  Hits.landed_action[attacker] = blow_action(attacker, by_projectile);
}

// Counts a blow the defender guarded, for the same tools.
void note_guarded(int attacker, int by_projectile) {
  ++Hits.guarded[attacker];
  Hits.guarded_action[attacker] = blow_action(attacker, by_projectile);
}

}  // namespace

bool is_thrown_or_held(int fighter) {
  const int a = fighters[fighter].action;
  if (!fighters[fighter].busy) return false;
  return (a >= 82 && a <= 101) || (a >= 410 && a <= 479) || (a >= 570 && a <= 593);
}

void set_reaction(int fighter, int action) {
  Fighter& f = fighters[fighter];
  f.action = action;
  f.frame = f.act_first[action];
  f.reacting = 1;
  f.guarding = 0;
  f.crouching = action == 159 ? 1 : 0;
  f.hit_live = 0;
  f.queued = 0;
  if (in_list(kDowningReactions, action)) f.busy = 1;
}

void apply_blow(int attacker, int defender, int guard_class, int damage, int by_projectile) {
  Fighter& a = fighters[attacker];
  Fighter& d = fighters[defender];
  if (d.turning) d.yaw = d.face_yaw;
  a.launch_speed = 1.0f;
  if (guard_class == 16) a.launch_speed = 4.5f;
  if (guard_class == 20) a.launch_speed = 6.5f;
  if (guard_class == 16 || guard_class == 20) guard_class = 1;

  bool guarded = false;
  int reaction = -1;
  if (by_projectile && (d.action == 8 || d.action == 35)) {
    d.damage += 1;  // chip
    d.gauge_gain = d.damage;
    a.gauge_gain = 2 * d.damage;
    guarded = d.life > d.damage;
  } else if (guard_class >= 1 && guard_class <= 3 && guards(defender, guard_class)) {
    if (guard_class == 1 && damage >= kGuardBreak) {
      reaction = 156;
    } else {
      guarded = true;
      enter_guard(defender, guard_class == 3 || (guard_class == 1 && (d.crouching || d.action == 35)) ? 35 : 8);
    }
  }

  int dealt = 0;
  bool held = false;     // thrown or held: the pair's motion goes on
  bool grabbed = false;  // this blow took hold (the hold has played the hit shout)
  if (guarded) {
    note_guarded(attacker, by_projectile);
    a.hit_new = -1;
    if (a.super_mode) {
      a.chip_acc += damage * 3 / 2;
      d.damage += a.chip_acc / 8;
      a.chip_acc %= 8;
    }
  } else {
    if (try_counter(attacker, defender, by_projectile)) return;
    note_landed(attacker, by_projectile);
    cpu_learns(attacker, defender, damage);
    if (!d.reacting && !d.busy) a.combo = 0;  // it had recovered: a new combo begins
    held = is_thrown_or_held(defender);
    // A special move that takes hold still deals its blow; the held motion plays on.
    if (!by_projectile && !held && try_hit_grab(attacker, defender)) held = grabbed = true;
    d.knock_force = std::max(damage, 5);
    d.queued = 0;
    dealt = scaled_damage(attacker, defender, damage);
    d.damage += dealt;
    d.gauge_gain = 2 * d.damage;
    a.gauge_gain = d.damage;
    if (d.drain_delay == 0) d.drain_delay = 7;
    count_combo(a);
    if (Match.first_strike == 0) {  // the round's first blow
      Match.first_strike = banner_side(attacker);
      Match.first_strike_frame = 0;
    }
    if (!held) {
      if (reaction < 0) {
        reaction = plain_reaction(a, d, guard_class, damage);
        reaction = heavy_reaction(defender, guard_class, dealt, a.launch_speed, reaction);
      }
      set_reaction(defender, reaction);
      if (reaction == 157 || reaction == 158 || reaction == 167 || airborne(defender)) {
        d.air_timer = std::max(d.air_timer - dealt, -20);
        start_launch(defender, dealt, a.launch_speed);
      }
    }
  }

  // Reaction timing, sound and sparks.
  if (!held) {
    d.reel_frames = (d.action == 153 || d.action == 159) ? 15 : 14;
    d.reel_push = 0;
    if (a.hit_special) {
      d.reel_frames = 0;
      d.reel_push = 10;
    }
  }
  const int part = a.frame_part[a.frame];
  Queue_Sound(2 * attacker, part == 19 || part == 20 ? SND_WEAPON_HIT : SND_HIT);
  if (!guarded) hit_sparks(attacker, guard_class, dealt);
  const bool alive = d.life > d.damage;
  if (alive && !guarded && !grabbed) {
    const int shout = CharacterVoices[Match.character[defender] & 15].hurt;
    if (shout >= 0) Queue_Sound(2 * defender + 1, shout);
  }

  if (alive || Match.ko_state != 0) {
    Match.hit_stop = std::min(dealt / 4 + 2, 5);
    Spawn_HitEffect(attacker, Hits.contact[0], Hits.contact[1], Hits.contact[2], 3, 0);
  } else {
    deciding_blow(attacker, defender, dealt, reaction, held);
  }
  if (d.damage > 0) d.perfect = 0;
}
