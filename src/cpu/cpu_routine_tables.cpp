// The ten character routines: the moves each picks inside the shared rules. A list of moves
// is indexed by its key's remainder, so a move written twice covers two remainders.
#include "cpu/cpu_routine.h"

namespace {

// ---- moves ---------------------------------------------------------------------------------
constexpr CpuMove Button(int b) {
  CpuMove m;
  m.what = DO_PRESS;
  m.button = static_cast<std::int8_t>(b);
  return m;
}
constexpr CpuMove ButtonDown(int b) {
  CpuMove m = Button(b);
  m.down = 1;
  return m;
}
constexpr CpuMove Cmd(int c, int b) {
  CpuMove m = Button(b);
  m.cmd = static_cast<std::int16_t>(c);
  return m;
}
constexpr CpuMove CmdS(int c, int s, int b) {
  CpuMove m = Cmd(c, b);
  m.stance = static_cast<std::int16_t>(s);
  return m;
}
// Command c with button b in stance 0 and button b23 in stance 23.
constexpr CpuMove CmdByStance(int c, int b, int b23) {
  CpuMove m = Cmd(c, b);
  m.button23 = static_cast<std::int8_t>(b23);
  return m;
}
constexpr CpuMove Close(int b) {
  CpuMove m = Button(b);
  m.what = DO_CLOSE;
  return m;
}
constexpr CpuMove CloseDown(int b) {
  CpuMove m = Close(b);
  m.down = 1;
  return m;
}
constexpr CpuMove Act(int a) {
  CpuMove m;
  m.what = DO_ACTION;
  m.action = static_cast<std::int16_t>(a);
  return m;
}
constexpr CpuMove ActS(int a, int s) {
  CpuMove m = Act(a);
  m.stance = static_cast<std::int16_t>(s);
  return m;
}
constexpr CpuMove Simple(CpuDo what) {
  CpuMove m;
  m.what = what;
  return m;
}
constexpr CpuMove Nothing = Simple(DO_NOTHING);
constexpr CpuMove B4Rule = Simple(DO_B4_RULE);
constexpr CpuMove B4Down = ButtonDown(4);
constexpr CpuMove WalkIn = Simple(DO_WALK_IN);
constexpr CpuMove DashIn = Simple(DO_DASH_IN);
constexpr CpuMove HopIn = [] {
  CpuMove m = CmdS(3, 0, 1);
  m.what = DO_HOP_IN;
  return m;
}();
constexpr CpuMove DashIn23 = [] {
  CpuMove m = DashIn;
  m.stance = 23;
  return m;
}();
constexpr CpuMove Toggle(CpuMove m) {
  m.toggle = 1;
  return m;
}
constexpr CpuMove When(CpuWhen w, CpuMove m) {
  m.when = w;
  return m;
}

// ---- lists of moves ------------------------------------------------------------------------
template <typename... M>
constexpr CpuPick Pick(CpuKey key, M... moves) {
  static_assert(sizeof...(M) <= CPU_PICKS);
  CpuPick p;
  p.key = key;
  p.n = static_cast<std::int8_t>(sizeof...(M));
  const CpuMove list[] = {moves...};
  for (int i = 0; i < p.n; ++i) p.moves[i] = list[i];
  return p;
}
template <typename... M>
constexpr CpuPick K(M... m) { return Pick(KEY_K, m...); }  // by (life + random + level)
template <typename... M>
constexpr CpuPick Rnd(M... m) { return Pick(KEY_RANDOM, m...); }  // by CpuRandom
template <typename... M>
constexpr CpuPick Lvl(M... m) { return Pick(KEY_LEVEL, m...); }  // by CpuLevel
constexpr CpuPick One(CpuMove m) { return Pick(KEY_K, m); }

// The close menu's common opening: a jab (a kick from 8.5), a straight, a low punch.
constexpr CpuMove CloseJab = Close(2);
constexpr CpuMove CloseStraight = Close(1);
constexpr CpuMove CloseLow = CloseDown(2);

}  // namespace

const CpuRoutine CpuRoutines[CPU_ROUTINES] = {
    {   // routine 1: characters 0, 11, 14
     .super_far0 = One(CmdS(1, 23, 1)),
     .super_far23 = One(CmdS(1, 23, 1)),
     .super_near0 = One(Cmd(1, 1)),
     .super_near23 = Rnd(Cmd(1, 1), Cmd(0, 1)),
     .juggle_far = CmdS(5, 0, 3),
     .juggle_near = CmdS(4, 23, 3),
     .own_air_rule = 1,
     .juggle_stage10 = CmdS(4, 0, 1),
     .guard_far = CmdS(3, 23, 1),
     .guard_low = GUARD_CROUCHING,
     .band13 = K(CmdS(3, 23, 1), WalkIn, WalkIn, WalkIn, DashIn),
     .dash_on_retreat = 0,
     .band10_stance0 = K(B4Rule, B4Down, Cmd(6, 3), Cmd(3, 1), Cmd(3, 1)),
     .band10_stance23 = K(B4Rule, B4Down, B4Down, Cmd(5, 1), Cmd(4, 3), CmdS(3, 0, 1)),
     .close = K(CloseJab, CloseStraight, CloseLow, Act(181), CmdS(1, 0, 3)),
     .crouch_far = When(WHEN_CLOCK_HALF, CmdS(6, 23, 1)),
     .crouch_mid = Act(211),
     .crouch_near = Act(250),
     .crouch_close_even = ButtonDown(2),
     .crouch_close_odd = One(Act(250)),
     .both_crouching_button = 4,
     .close_standing = K(ButtonDown(1), Button(2), ButtonDown(3)),
     .reacts_to_throws = 1,
     .renews_down_hold = 0},
    {   // routine 2: character 1
     .super_far0 = Rnd(CmdS(0, 0, 1), CmdS(1, 23, 3)),
     .super_far23 = Rnd(CmdS(0, 0, 1), CmdS(1, 23, 3)),
     .super_near0 = One(Cmd(1, 1)),
     .super_near23 = One(Cmd(1, 3)),
     .juggle_far = CmdS(4, 0, 1),
     .juggle_near = CmdS(4, 0, 1),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = CmdS(5, 0, 3),
     .guard_low = GUARD_CROUCHING,
     .band13 = K(When(WHEN_NOT_CHARGING, CmdS(3, 0, 1)), When(WHEN_NOT_CHARGING, CmdS(3, 0, 1)),
                 CmdS(5, 0, 3), WalkIn, DashIn),
     .dash_on_retreat = 0,
     .band10_stance0 = K(B4Rule, B4Down, Cmd(6, 1), Cmd(0, 1), Cmd(0, 1)),
     .band10_stance23 = K(B4Rule, B4Down, Act(217), Cmd(4, 3), Cmd(0, 1), Cmd(1, 3)),
     .close = K(CloseJab, CloseStraight, CloseLow, Act(188), CmdByStance(1, 1, 3)),
     .crouch_far = CmdS(5, 0, 3),
     .crouch_mid = Act(188),
     .crouch_near = Act(188),
     .crouch_close_even = B4Down,
     .crouch_close_odd = One(Act(188)),
     .both_crouching_button = 4,
     .close_standing = K(ButtonDown(1), Button(2), ButtonDown(3)),
     .reacts_to_throws = 1,
     .renews_down_hold = 0},
    {   // routine 3: character 2
     .super_far0 = Rnd(CmdS(1, 0, 1), CmdS(0, 23, 3)),
     .super_far23 = Rnd(CmdS(1, 0, 1), CmdS(0, 23, 3)),
     .super_near0 = One(Cmd(0, 1)),
     .super_near23 = One(Cmd(0, 1)),
     .juggle_far = CmdS(4, 0, 1),
     .juggle_near = CmdS(4, 0, 1),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = CmdS(6, 0, 1),
     .guard_low = GUARD_STANDING,
     .band13 = K(Toggle(When(WHEN_NOT_CHARGING, Cmd(6, 1))),
                 Toggle(When(WHEN_NOT_CHARGING, Cmd(6, 1))), WalkIn, DashIn),
     .dash_on_retreat = 0,
     .band10_stance0 = K(B4Rule, B4Down, Cmd(3, 3), Cmd(3, 3), Cmd(5, 1), Cmd(5, 1)),
     .band10_stance23 = K(B4Rule, B4Down, Act(188), Cmd(3, 1), Cmd(5, 1), CmdS(3, 0, 1)),
     .close = K(CloseJab, CloseStraight, CloseLow, CmdS(3, 0, 1), CmdS(0, 0, 1)),
     .crouch_far = CmdS(6, 0, 1),
     .crouch_mid = Act(188),
     .crouch_near = Act(188),
     .crouch_close_even = B4Down,
     .crouch_close_odd = One(Act(188)),
     .both_crouching_button = 4,
     .close_standing = K(ButtonDown(1), Button(2), ButtonDown(3)),
     .reacts_to_throws = 1,
     .renews_down_hold = 0},
    {   // routine 4: characters 3, 10
     .super_far0 = One(CmdS(0, 23, 1)),
     .super_far23 = One(CmdS(0, 23, 1)),
     .super_near0 = Rnd(Cmd(0, 1), Cmd(0, 3)),
     .super_near23 = One(Cmd(0, 3)),
     .juggle_far = CmdS(4, 0, 3),
     .juggle_near = CmdS(4, 0, 3),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = Nothing,
     .guard_low = GUARD_CROUCHING,
     .band13 = K(WalkIn, DashIn23),
     .dash_on_retreat = 1,
     .band10_stance0 = K(B4Rule, B4Down, Cmd(3, 3), Cmd(3, 3), Cmd(5, 3), Cmd(5, 3)),
     .band10_stance23 = K(B4Rule, B4Down, Toggle(Act(211)), Cmd(3, 1), Cmd(3, 1), Cmd(3, 3),
                          Cmd(3, 3)),
     .close = K(CloseJab, CloseStraight, CloseLow, CmdS(3, 23, 1), CmdS(5, 0, 3)),
     .crouch_far = WalkIn,
     .crouch_mid = Act(211),
     .crouch_near = Act(211),
     .crouch_close_even = ButtonDown(2),
     .crouch_close_odd = K(Act(211), CmdS(3, 23, 1), CmdS(3, 0, 1)),
     .both_crouching_button = 2,
     .close_standing = Rnd(ButtonDown(1), Button(4)),
     .reacts_to_throws = 1,
     .renews_down_hold = 0},
    {   // routine 5: character 4
     .super_far0 = Rnd(CmdS(0, 0, 3), When(WHEN_JUMPING_IN, CmdS(0, 0, 3))),
     .super_far23 = Rnd(CmdS(0, 0, 3), When(WHEN_JUMPING_IN, CmdS(0, 0, 3))),
     .super_near0 = One(Cmd(0, 1)),
     .super_near23 = Rnd(Cmd(0, 1), Cmd(0, 3)),
     .juggle_far = CmdS(4, 23, 3),
     .juggle_near = CmdS(4, 23, 3),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = CmdS(3, 23, 1),
     .guard_low = GUARD_STANDING,
     .band13 = K(WalkIn, DashIn23),
     .dash_on_retreat = 1,
     .band10_stance0 = K(B4Down, ActS(211, 23), Cmd(3, 1), Cmd(6, 1), Cmd(6, 3)),
     .band10_stance23 = K(B4Down, ActS(211, 0), Cmd(3, 3), Cmd(6, 3), Cmd(4, 3)),
     .close = K(CloseJab, CloseStraight, CloseLow, Act(211)),
     .crouch_far = WalkIn,
     .crouch_mid = Act(211),
     .crouch_near = CmdS(3, 0, 1),
     .crouch_close_even = ButtonDown(2),
     .crouch_close_odd = One(Act(211)),
     .both_crouching_button = 2,
     .close_standing = Rnd(ButtonDown(1), Button(4)),
     .reacts_to_throws = 1,
     .renews_down_hold = 0},
    {   // routine 6: character 5
     .super_far0 = One(Cmd(1, 1)),
     .super_far23 = Rnd(Cmd(0, 1), Cmd(1, 1)),
     .super_near0 = One(CmdS(0, 0, 1)),
     .super_near23 = One(CmdS(0, 0, 1)),
     .juggle_far = CmdS(4, 23, 1),
     .juggle_near = CmdS(4, 23, 1),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = Nothing,
     .guard_low = GUARD_STANDING,
     .band13 = K(WalkIn, DashIn23),
     .dash_on_retreat = 0,
     .band10_stance0 = K(Act(181), B4Down, Cmd(6, 3), Cmd(5, 3)),
     .band10_stance23 = K(B4Rule, B4Down, CmdS(6, 0, 3), Cmd(7, 3), Cmd(7, 3), Cmd(6, 1),
                          Cmd(6, 1)),
     .close = K(CmdS(5, 0, 1), CloseLow, Act(216), CmdS(3, 23, 1), CmdS(3, 0, 3)),
     .crouch_far = WalkIn,
     .crouch_mid = Act(211),
     .crouch_near = Act(211),
     .crouch_close_even = ButtonDown(2),
     .crouch_close_odd = One(Act(211)),
     .both_crouching_button = 4,
     .close_standing = One(Button(2)),
     .reacts_to_throws = 0,
     .renews_down_hold = 0},
    {   // routine 7: character 6
     .super_far0 = Lvl(Cmd(1, 1), Cmd(0, 1)),
     .super_far23 = Lvl(Cmd(0, 3), Cmd(0, 1)),
     .super_near0 = Lvl(Cmd(1, 1), Cmd(0, 1)),
     .super_near23 = Lvl(Cmd(0, 3), Cmd(0, 1)),
     .juggle_far = CmdS(4, 0, 3),
     .juggle_near = CmdS(4, 0, 3),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = CmdS(6, 0, 1),
     .guard_low = GUARD_STANDING,
     .band13 = K(Toggle(When(WHEN_NOT_CHARGING, Cmd(3, 1))),
                 Toggle(When(WHEN_NOT_CHARGING, Cmd(3, 1))), WalkIn, DashIn),
     .dash_on_retreat = 0,
     .band10_stance0 = K(B4Rule, B4Down, B4Down, Cmd(3, 3), Cmd(3, 3), Cmd(4, 3), Cmd(4, 3)),
     .band10_stance23 = K(B4Rule, B4Down, B4Down, B4Down, Cmd(3, 1), Cmd(5, 3)),
     .close = K(CloseLow, Act(188), Cmd(3, 3), CmdS(5, 23, 3)),
     .crouch_far = HopIn,
     .crouch_mid = HopIn,
     .crouch_near = Act(188),
     .crouch_close_even = ButtonDown(2),
     .crouch_close_odd = One(Act(188)),
     .both_crouching_button = 4,
     .close_standing = K(Button(4), Button(2), ButtonDown(3)),
     .reacts_to_throws = 1,
     .renews_down_hold = 0},
    {   // routine 8: characters 7, 12
     .super_far0 = One(Cmd(0, 3)),
     .super_far23 = One(Cmd(0, 3)),
     .super_near0 = One(Cmd(0, 1)),
     .super_near23 = One(Cmd(0, 1)),
     .juggle_far = CmdS(4, 23, 1),
     .juggle_near = CmdS(4, 23, 1),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = Nothing,
     .guard_low = GUARD_STANDING,
     .band13 = K(WalkIn, DashIn23),
     .dash_on_retreat = 0,
     .band10_stance0 = K(B4Rule, B4Down, Cmd(6, 3), Cmd(6, 3), Cmd(5, 3), Cmd(5, 3), Cmd(3, 3),
                         Cmd(3, 3), Cmd(7, 3)),
     .band10_stance23 = K(B4Rule, B4Down, CmdS(3, 0, 3), Cmd(3, 1), Cmd(3, 1), Cmd(6, 1),
                          Cmd(6, 1)),
     .close = K(CmdS(5, 0, 1), CloseLow, Act(188), CmdS(3, 23, 1), CmdS(5, 0, 3)),
     .crouch_far = WalkIn,
     .crouch_mid = Act(211),
     .crouch_near = Act(211),
     .crouch_close_even = ButtonDown(2),
     .crouch_close_odd = K(Act(211), CmdS(6, 0, 1), CmdS(6, 23, 1)),
     .both_crouching_button = 4,
     .close_standing = K(CmdS(3, 0, 1), CmdS(3, 23, 1), ButtonDown(2)),
     .reacts_to_throws = 1,
     .renews_down_hold = 0},
    {   // routine 9: character 8
     .super_far0 = One(CmdS(0, 23, 3)),
     .super_far23 = One(CmdS(0, 23, 3)),
     .super_near0 = Rnd(CmdS(0, 0, 1), CmdS(0, 0, 3), CmdS(0, 23, 1)),
     .super_near23 = Rnd(CmdS(0, 0, 1), CmdS(0, 0, 3), CmdS(0, 23, 1)),
     .juggle_far = CmdS(4, 0, 3),
     .juggle_near = CmdS(4, 0, 3),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = Nothing,
     .guard_low = GUARD_STANDING,
     .band13 = K(WalkIn, DashIn23),
     .dash_on_retreat = 1,
     .band10_stance0 = K(B4Down, Cmd(6, 1), Cmd(6, 1), Cmd(5, 3), Cmd(5, 3), Cmd(5, 3)),
     .band10_stance23 = K(Cmd(3, 1), Cmd(3, 1), B4Down, B4Down, Cmd(6, 1), Cmd(7, 3), Cmd(7, 3),
                          Cmd(7, 3), Cmd(7, 3), Cmd(7, 3)),
     .close = K(CloseStraight, CloseLow, Act(181), CmdS(3, 23, 1), CmdS(3, 0, 1)),
     .crouch_far = WalkIn,
     .crouch_mid = Act(211),
     .crouch_near = Act(211),
     .crouch_close_even = ButtonDown(2),
     .crouch_close_odd = K(Act(211), CmdS(3, 23, 1), CmdS(3, 0, 1)),
     .both_crouching_button = 4,
     .close_standing = Rnd(ButtonDown(1), Button(4)),
     .reacts_to_throws = 1,
     .renews_down_hold = 0},
    {   // routine 10: characters 9, 13
     .super_far0 = One(CmdS(0, 0, 1)),
     .super_far23 = One(CmdS(0, 0, 1)),
     .super_near0 = One(CmdS(0, 23, 1)),
     .super_near23 = One(CmdS(0, 23, 1)),
     .juggle_far = CmdS(5, 0, 3),
     .juggle_near = CmdS(4, 23, 1),
     .own_air_rule = 0,
     .juggle_stage10 = Nothing,
     .guard_far = CmdS(3, 23, 1),
     .guard_low = GUARD_STANDING,
     .band13 = K(When(WHEN_NOT_WEAK, CmdS(3, 23, 3)), WalkIn, DashIn),
     .dash_on_retreat = 0,
     .band10_stance0 = K(B4Rule, B4Down, Act(211), Cmd(3, 1), Cmd(3, 1)),
     .band10_stance23 = K(B4Rule, B4Down, Act(211), Cmd(5, 1), Cmd(5, 1), Cmd(5, 1), Cmd(3, 1),
                          Cmd(6, 1)),
     .close = K(CmdS(4, 23, 1), CmdS(5, 23, 1), CloseLow, CmdS(3, 0, 1), CmdS(1, 0, 3),
                Act(188)),
     .crouch_far = CmdS(3, 23, 3),
     .crouch_mid = Act(211),
     .crouch_near = Act(188),
     .crouch_close_even = ButtonDown(2),
     .crouch_close_odd = One(Act(188)),
     .both_crouching_button = 4,
     .close_standing = K(ButtonDown(1), Button(2), ButtonDown(3)),
     .reacts_to_throws = 1,
     .renews_down_hold = 1},
};
