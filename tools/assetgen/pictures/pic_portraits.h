// Fighter pictures shared by several screens: the tall select portrait, head shots, and the
// names as written on plates.
#pragma once
#include "pictures/pic_canvas.h"

namespace pic {

// The select portrait of a character (first colours): 256 x 384, the fighter from head to
// thigh turned toward the screen's middle, over its own colours.
Canvas Tall_Portrait(int character);
// The fighter's head and shoulders on a transparent canvas of w x h.
Canvas Head_Shot(int row, int w, int h, float yaw = 200);

}  // namespace pic
