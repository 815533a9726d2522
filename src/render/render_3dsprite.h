// Effect models drawn whole: a thrown weapon, a flaming card, an energy ball.
#pragma once

// Draws Polygon_Sprite[index] scaled about its own origin, turned about z by a3, y by a2 and
// x by a1 (whole degrees), placed at (x, y, z) and seen through the frame's View. One-sided:
// faces that turn away from the camera are not drawn. The current colour and blend apply, so
// callers tint or fade the model by setting them first. Faces with a corner at or behind the
// camera are skipped.
void Draw_3DSprite(int index, float x, float y, float z, int a1, int a2, int a3, float scale);
