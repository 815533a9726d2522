// The opening: two fighters perform in turn (the scene shows one at a time, by script frame)
// while the camera flies round fighter 0, cutting on the scene's cut frames.
#pragma once
#include <string>

#include "moves/mv_bake.h"
#include "writers/writer_cam.h"

namespace mv {

constexpr int kOpeningFrames = 1300;  // script frames; the camera path holds as many

const char* Mv_OpeningAnimFile(int side);   // "OPEN_BAN.FA", "OPEN_KNI.FX"
std::string Mv_OpeningTableFile(int side);  // "OPEN_BAN.TBL", "OPEN_KNI.TBL"
// Side 0 is character 0, side 1 character 9; each plays its whole performance as action 0.
bool Mv_BakeOpening(int side, OwnFiles& out, std::string* error);
// The eye and look-at points, relative to fighter 0, in the file's units.
void Mv_OpeningCamera(writers::CameraPathFile& eye, writers::CameraPathFile& look);

}  // namespace mv
