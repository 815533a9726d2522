// The camera matrix of the frame: world space to camera space.
//
// Written once per drawn frame by the stage drawing's view set-up; the fighter, chain and
// effect passes read it. All zero at program start, until the first view is set.
#pragma once
#include "render/render_math.h"

extern Mat43 View;
