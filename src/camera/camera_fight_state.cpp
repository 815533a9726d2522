// The fight camera's record.
#include "camera/camera_fight.h"

FightCameraState FightCamera;
