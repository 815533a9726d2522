// The poses several parts of the shared catalogue start from or return to: the two stances,
// crouching, guarding, lying on the back and on the face, kneeling.
#pragma once
#include "motion/mot_shared_build.h"

namespace mot::shared {

// Orthodox stance: left side leading, hips turned a third of the way, fists up.
inline constexpr Pose kStance = Make({{4, 0, 28, 0},     {3, 8, 12, 0},     {2, -4, -36, 0},
                                      {11, -42, 0, -12}, {12, -100, 20, 0}, {13, 10, 0, 0},
                                      {5, -22, 0, 18},   {6, -118, -25, 0}, {7, 10, 0, 0},
                                      {14, -26, -8, -4}, {15, 30, 0, 0},    {16, -6, 10, 0},
                                      {8, 14, -6, 6},    {9, 26, 0, 0},     {10, -18, 0, 0}});
// Breathing in and out around the stance.
inline constexpr Pose kStanceIn = With(kStance, {{3, 5, 12, 0}, {2, -6, -36, 0}, {11, -44, 0, -14}, {5, -24, 0, 20}});
inline constexpr Pose kStanceOut = With(kStance, {{3, 11, 12, 0}, {2, -2, -36, 0}, {15, 36, 0, 0}, {9, 32, 0, 0},
                                                  {14, -30, -8, -4}, {8, 12, -6, 6}});

// Low stance (stance 23): wide, deep, lead hand open and forward, the rear leg long behind.
inline constexpr Pose kLow = Make({{4, 6, 40, 0},      {3, 12, 10, 0},    {2, -10, -46, 0},
                                   {11, -70, 10, -8},  {12, -40, 20, 0},  {13, -20, 0, 0},
                                   {5, -10, 0, 30},    {6, -100, -30, 0}, {7, 10, 0, 0},
                                   {14, -40, -10, -14}, {15, 48, 0, 0},   {16, -8, 12, 0},
                                   {8, 28, -8, 8},     {9, 4, 0, 0},      {10, -14, 0, 0}});
inline constexpr Pose kLowIn = With(kLow, {{3, 9, 10, 0}, {11, -72, 10, -10}, {15, 44, 0, 0}, {9, 2, 0, 0}});
inline constexpr Pose kLowOut = With(kLow, {{3, 15, 10, 0}, {15, 54, 0, 0}, {9, 8, 0, 0}, {14, -44, -10, -14}});

// Crouching: knees deep, trunk forward, guard kept, the rear foot on its ball.
inline constexpr Pose kCrouch = With(kStance, {{4, 20, 28, 0},    {3, 16, 12, 0},  {2, -20, -36, 0},
                                               {14, -88, -8, -6}, {15, 116, 0, 0}, {16, -26, 10, 0},
                                               {8, -40, -6, 10},  {9, 106, 0, 0},  {10, -66, 0, 0}});
inline constexpr Pose kCrouchIn = Plus(kCrouch, {{3, -4, 0, 0}, {2, 3, 0, 0}, {11, -4, 0, -3}, {5, -3, 0, 4}});

// Guard: forearms closed in front of the face, weight back.
inline constexpr Pose kGuard = With(kStance, {{3, 4, 4, 0},     {2, 10, -30, 0},
                                              {11, -58, 0, 14}, {12, -124, 30, 0},
                                              {5, -56, 0, -14}, {6, -124, -30, 0},
                                              {15, 34, 0, 0},   {9, 32, 0, 0}});
inline constexpr Pose kCrouchGuard = With(kCrouch, {{3, 10, 4, 0},    {2, 4, -30, 0},
                                                    {11, -62, 0, 14}, {12, -126, 30, 0},
                                                    {5, -60, 0, -14}, {6, -126, -30, 0}});

// On the back, head away from the opponent, feet toward it. The hips stay over the root, so the
// body point the fight follows does not move when the fighter gets up.
inline constexpr Pose kLyingUp = Make({{4, -90, 0, 0},     {3, 0, 0, 0},     {2, -10, 20, 0},
                                       {11, -150, 0, -30}, {12, -20, 0, 0},  {5, -170, 0, 40}, {6, -10, 0, 0},
                                       {14, -10, 0, -8},   {15, 14, 0, 0},   {16, 40, 0, 0},
                                       {8, -4, 0, 10},     {9, 6, 0, 0},     {10, 40, 0, 0}});
// On the face, head toward the opponent, arms stretched out along the floor past the head.
inline constexpr Pose kLyingDown = Make({{4, 90, 0, 0},      {3, 4, 0, 0},     {2, -30, -30, 0},
                                         {11, -160, 0, -24}, {12, -20, 0, 0},  {5, -160, 0, 24}, {6, -20, 0, 0},
                                         {14, 0, 0, -8},     {15, 10, 0, 0},   {16, -50, 0, 0},
                                         {8, 0, 0, 8},       {9, 16, 0, 0},    {10, -50, 0, 0}});
// Sitting up from the back, and on one knee.
inline constexpr Pose kSitUp = Make({{4, -40, 10, 0},  {3, 30, 0, 0},    {2, 10, -10, 0},
                                     {11, -10, 0, -20}, {12, -40, 0, 0},  {5, 10, 0, 30}, {6, -30, 0, 0},
                                     {14, -70, 0, -10}, {15, 120, 0, 0},  {16, -30, 0, 0},
                                     {8, -20, 0, 10},   {9, 40, 0, 0},    {10, 10, 0, 0}});
inline constexpr Pose kKneel = Make({{4, 10, 20, 0},    {3, 14, 10, 0},   {2, -10, -30, 0},
                                     {11, -40, 0, -14},  {12, -100, 20, 0}, {5, -20, 0, 20}, {6, -110, -20, 0},
                                     {14, -90, -8, -6},  {15, 90, 0, 0},   {16, 0, 10, 0},
                                     {8, 0, -6, 8},      {9, 120, 0, 0},   {10, 30, 0, 0}});
// Push-up from the face.
inline constexpr Pose kPushUp = Make({{4, 60, 0, 0},     {3, -20, 0, 0},  {2, -30, 0, 0},
                                      {11, -60, 0, -20}, {12, -20, 0, 0}, {5, -60, 0, 20}, {6, -20, 0, 0},
                                      {14, -60, 0, -8},  {15, 120, 0, 0}, {16, -30, 0, 0},
                                      {8, 10, 0, 8},     {9, 20, 0, 0},   {10, -40, 0, 0}});

// Stunned and folded at the waist: the core of the recoils.
inline constexpr Pose kHurt = With(kStance, {{4, -8, 20, 0},   {3, 28, 4, 0},   {2, 24, -30, 10},
                                             {11, -20, 0, -30}, {12, -60, 0, 0}, {5, -10, 0, 30}, {6, -70, 0, 0},
                                             {15, 40, 0, 0},    {9, 40, 0, 0}});
// Arched back with the head snapped up: the high recoils.
inline constexpr Pose kHurtHigh = With(kStance, {{4, -6, 24, 0},   {3, -22, 8, 0},  {2, -34, -20, -8},
                                                 {11, -10, 0, -40}, {12, -50, 0, 0}, {5, 0, 0, 40}, {6, -50, 0, 0},
                                                 {15, 34, 0, 0},    {9, 20, 0, 0},   {14, -10, -8, -4}});
// Knocked back in the air, arms thrown out.
inline constexpr Pose kAirBack = Make({{4, -50, 10, 0},    {3, -20, 0, 0},  {2, -25, 0, 0},
                                       {11, -120, 0, -40}, {12, -30, 0, 0}, {5, -120, 0, 40}, {6, -30, 0, 0},
                                       {14, -50, 0, -6},   {15, 50, 0, 0},  {8, -30, 0, 6},   {9, 30, 0, 0}});

// Pitched forward in the air, arms reaching for the floor.
inline constexpr Pose kAirFront = Make({{4, 50, 10, 0},     {3, 20, 0, 0},   {2, -40, 0, 0},
                                        {11, -150, 0, -30}, {12, -30, 0, 0}, {5, -150, 0, 30}, {6, -30, 0, 0},
                                        {14, 20, 0, -6},    {15, 60, 0, 0},  {8, 30, 0, 6},    {9, 40, 0, 0}});

}  // namespace mot::shared
