// The camera matrix of the frame.
#include "render/render_view.h"

Mat43 View;
