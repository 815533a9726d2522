// Pictures of the fighters, made from each character's own model, skin and skeleton: a shot
// names the row, the pose, the camera and the lights. The renderer behind Render_Shot can be
// exchanged (for the game's own drawing code) without touching the pictures that use it.
#pragma once
#include "pictures/pic_canvas.h"

namespace mot {
struct Pose;
}

namespace pic {

struct Shot {
  int row = 0;                  // model row 0..29 (characters in their first or second colours)
  const mot::Pose* pose = nullptr;  // nullptr: the fighting stance
  int width = 256, height = 256;    // picture size in pixels
  float yaw = 200;              // the fighter's turn, degrees (180 faces the camera)
  float pitch = 0;              // camera tilt, degrees; positive looks down on the fighter
  float look_x = 0, look_y = -3.8f;  // model-space point at the picture's centre
  float span = 11.0f;           // model units the picture's height spans at the look point
  float distance = 40.0f;       // camera distance from the look point
  Rgba key = Hex(0xFFF4E0);     // light from the upper front
  Rgba ambient = Hex(0x6A6470);
  Rgba rim = Hex(0x80B0FF);     // light from behind, on the silhouette's edges
  float rim_power = 1.0f;
  int supersample = 3;
};

// Draws the shot on a transparent canvas (alpha is the figure's coverage).
using FigureRenderer = Canvas (*)(const Shot&);
Canvas Render_Shot(const Shot& shot);
// Exchanges the renderer; nullptr restores the built-in software one.
void Set_Figure_Renderer(FigureRenderer renderer);
// The built-in renderer: lit, textured, depth-tested triangles with the game's back-face rule.
Canvas Render_Software(const Shot& shot);

// The fighter's own colours, for the pictures around it.
Rgba Figure_Main_Colour(int row);
Rgba Figure_Accent_Colour(int row);

}  // namespace pic
